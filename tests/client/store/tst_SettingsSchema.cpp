// The published schema, and that it takes the same documents as the client. A foreign validator reads it.

#include "support/WrongDocuments.h"

#include <client/store/SettingsSchema.h>

#include <QFile>
#include <QProcess>
#include <QtTest>

using namespace LocalConfigClient;

class tst_SettingsSchema : public QObject
{
    Q_OBJECT

private slots:
    void ThePublishedSchemaIsThatOfTheClient();
    void GoodDocumentsFollowIt();
    void WrongDocumentsDoNot();

private:
    static void Compare(const QList<SWrongDocument>& listDocuments);
};

void tst_SettingsSchema::ThePublishedSchemaIsThatOfTheClient()
{
    QFile file(SCHEMA);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY2(file.readAll() == GetSettingsSchema(), "write docs/settings.schema.json anew: client --schema");
}

/// What the validator says of documents and what the client says.
void tst_SettingsSchema::Compare(const QList<SWrongDocument>& listDocuments)
{
    QJsonArray array;
    QByteArray expected;
    for (const SWrongDocument& document : listDocuments)
    {
        array.append(QJsonDocument::fromJson(document.content).object());
        expected += SettingsDocument().Parse(document.content) == SettingsDocument::Good ? '1' : '0';
    }
    QProcess validator;
    validator.start(PYTHON, {VALIDATE, SCHEMA});
    validator.write(QJsonDocument(array).toJson());
    validator.closeWriteChannel();
    QVERIFY(validator.waitForFinished());
    const QByteArray found = validator.readAllStandardOutput().trimmed();
    QVERIFY2(found.size() == expected.size(), validator.readAllStandardError().constData());
    for (int n = 0; n < listDocuments.size(); ++n)
    {
        QVERIFY2(found.at(n) == expected.at(n), listDocuments.at(n).name.constData());
    }
}

void tst_SettingsSchema::GoodDocumentsFollowIt()
{
    Settings bytes;
    bytes.snapshot.picturePath = "\xff";
    Compare({{"defaults", {}, Document(Settings())},
             {"changed", {}, Document(ChangedSettings())},
             {"bytes that are no text", {}, Document(bytes)},
             {"nothing set", {}, R"({"version": 1, "sections": {}})"},
             {"a whole number as a fraction", {}, R"({"version": 1.0, "sections": {"basic": {"clientSize": 2.0}}})"},
             {"unknown keys", {}, R"({"version": 1, "sections": {"x": 1, "basic": {"y": {}}}, "z": []})"},
             {"unknown keys of maps", {}, R"({"version": 1, "sections": {"alarm": {"flashCategories":
                 {"01": 1, "-0": 1, "x": 1, "+1": 1, "4294967296": 1}}}})"}});
}

void tst_SettingsSchema::WrongDocumentsDoNot()
{
    QList<SWrongDocument> listWrong = WrongDocuments();
    listWrong += {"no version", {}, R"({"sections": {}})"};
    listWrong += {"newer", {}, R"({"version": 2, "sections": {}})"};
    listWrong += {"version 0", {}, R"({"version": 0, "sections": {}})"};
    listWrong += {"no sections", {}, R"({"version": 1})"};
    for (const char* pszBad : {"YQ", "YQ=", "Y", "YQ==YQ==", "Y Q==", "YR==", "====", "-_=="})
    {
        const QByteArray base64(pszBad);
        listWrong += {"base64 " + base64,
                      {},
                      R"({"version": 1, "sections": {"record": {"recordPath": {"base64": ")" + base64 + "\"}}}}"};
    }
    Compare(listWrong);
}

QTEST_GUILESS_MAIN(tst_SettingsSchema)

#include "tst_SettingsSchema.moc"
