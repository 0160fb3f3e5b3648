#pragma once

#include <QRandomGenerator>
#include <QtTest>

/// Whether the proofs run in their long form, which is asked for with KV_LONG=1.
inline bool IsLongForm()
{
    return qEnvironmentVariableIntValue("KV_LONG") != 0;
}

/// How often a proof repeats itself.
inline int Repetitions(int nShort, int nLong)
{
    return IsLongForm() ? nLong : nShort;
}

/// Says something on the standard output, where QtTest's own messages come to an end after the first two thousand.
inline void Tell(const QString& strText)
{
    QTextStream(stdout) << strText << Qt::endl;
}

/// A source of chance. Its seed is printed, and KV_SEED gives it again.
class CChance
{
public:
    CChance()
        : CChance(qEnvironmentVariableIsSet("KV_SEED") ? qEnvironmentVariable("KV_SEED").toUInt()
                                                       : QRandomGenerator::system()->generate())
    {}

    bool OneIn(int n) { return Below(n) == 0; }

    /// 0 to n - 1.
    int Below(int n) { return m_generator.bounded(n); }

    quint32 Bits() { return m_generator.generate(); }

    template <class List>
    const auto& OneOf(const List& list)
    {
        return *(std::begin(list) + Below(int(std::size(list))));
    }

private:
    explicit CChance(quint32 nSeed)
        : m_generator(nSeed)
    {
        Tell(QStringLiteral("KV_SEED=%1").arg(nSeed));
    }

    QRandomGenerator m_generator;
};

/// The main function of a proof, whose long form may take hours where a test has minutes.
#define PROOF_MAIN(TestClass)                                                                                          \
    int main(int argc, char* argv[])                                                                                   \
    {                                                                                                                  \
        qputenv("QTEST_FUNCTION_TIMEOUT", QByteArray::number(Repetitions(300, 4 * 3600) * 1000));                      \
        QApplication application(argc, argv);                                                                          \
        TestClass test;                                                                                                \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }
