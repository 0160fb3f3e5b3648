#include "support/WrongDocuments.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

#include <algorithm>

using namespace LocalConfigClient;

namespace
{

/// Stands for a value of any type where an aggregate is initialised.
struct SAnyValue
{
    template <class Value>
    operator Value&() const;
};

#ifdef __GNUC__
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmissing-field-initializers" // leaving fields out is the point
#endif
template <class Record, class... Values>
constexpr auto TakesValues(int) -> decltype(Record{std::declval<Values>()...}, true)
{
    return true;
}
#ifdef __GNUC__
#pragma GCC diagnostic pop
#endif
template <class Record, class... Values>
constexpr bool TakesValues(long)
{
    return false;
}

/// How many fields the compiler sees in a record.
template <class Record, class... Values>
constexpr int CountFields()
{
    if constexpr (TakesValues<Record, Values..., SAnyValue>(0))
    {
        return CountFields<Record, Values..., SAnyValue>();
    }
    else
    {
        return sizeof...(Values);
    }
}

/// How many of them are listed.
template <class Record>
int CountListed()
{
    int nFields = 0;
    Record record;
    VisitFields(record, [&nFields](const char* /*pszName*/, const auto& /*field*/) { ++nFields; });
    return nFields;
}

template <class Record>
bool IsListedInOrder()
{
    QStringList listNames;
    Record record;
    VisitFields(record, [&listNames](const char* pszName, const auto& /*field*/) { listNames += pszName; });
    return std::is_sorted(listNames.begin(), listNames.end());
}

QByteArray AsQtWritesIt(const QByteArray& content)
{
    return QJsonDocument::fromJson(content).toJson(QJsonDocument::Indented);
}

} // namespace

class tst_SettingsDocument : public QObject
{
    Q_OBJECT

private slots:
    void DefaultsRoundTrip();
    void EveryFieldRoundTrips();
    void EveryFieldCounts();
    void EveryFieldIsListed();
    void FieldsAreListedInTheOrderOfTheDocument();
    void TheSameSettingsGiveTheSameBytes();
    void NamesOfTheDocument();
    void AMissingKeyStandsForTheDefault();
    void UnknownKeysSurvive();
    void ARemovedMapEntryIsGone();
    void BytesThatAreNoTextSurvive();
    void ExtremeNumbers();
    void WrongTypesAreFound_data();
    void WrongTypesAreFound();
    void DamagedDocumentsAreFound_data();
    void DamagedDocumentsAreFound();
    void AByteOrderMarkIsNoDamage();
    void ANewerDocumentIsTold();
    void ADamagedDocumentChangesNothing();
    void ItIsWrittenAsQtWritesIt();
    void EveryFieldIsWrittenAsQtWritesIt();
    void KeysOfMapsAreWrittenInTheOrderOfTheirTexts();
    void UnknownKeysKeepTheirPlacesAtEveryLevel_data();
    void UnknownKeysKeepTheirPlacesAtEveryLevel();
    void UnknownKeysOfARemovedMapEntryComeBackWithIt();
    void LargeNumbersOfUnknownKeysSurvive();
    void LargeMapsTakeTheirShareOfTime();
    void MissingRights_data();
    void MissingRights();
};

void tst_SettingsDocument::DefaultsRoundTrip()
{
    SettingsDocument document;
    QCOMPARE(document.Parse(SettingsDocument().Serialize()), SettingsDocument::Good);
    QVERIFY(document.GetSettings() == Settings());
}

void tst_SettingsDocument::EveryFieldRoundTrips()
{
    SettingsDocument document;
    QCOMPARE(document.Parse(Document(ChangedSettings())), SettingsDocument::Good);
    const Settings settings = document.GetSettings();
    QVERIFY(settings == ChangedSettings());
    QCOMPARE(settings.record.recordPath, ChangedSettings().record.recordPath);
    QCOMPARE(settings.alarm.alarmSounds.at(3).customSound, ChangedSettings().alarm.alarmSounds.at(3).customSound);
    QCOMPARE(settings.basic.hostOwned28, ChangedSettings().basic.hostOwned28);
}

void tst_SettingsDocument::EveryFieldCounts()
{
    // No leaf of the changed document equals the one of the default document, so nothing was left out of the change.
    QMap<QString, QJsonValue> mapDefault;
    QMap<QString, QJsonValue> mapChanged;
    ListLeaves(QString(), FromBytes(SettingsDocument().Serialize()).value("sections"), mapDefault);
    ListLeaves(QString(), FromBytes(Document(ChangedSettings())).value("sections"), mapChanged);
    QVERIFY(mapDefault.size() >= 28 + 20 + 6 + 9 + 11 + 5 + 1 + 5 + 1);
    for (auto it = mapDefault.constBegin(); it != mapDefault.constEnd(); ++it)
    {
        QVERIFY2(mapChanged.value(it.key(), *it) != *it, qPrintable(it.key()));
    }
}

void tst_SettingsDocument::EveryFieldIsListed()
{
    using namespace LocalConfigLogical;
#define COMPARE_FIELDS(Record) QCOMPARE(CountListed<Record>(), CountFields<Record>())
    COMPARE_FIELDS(Settings);
    COMPARE_FIELDS(BasicConfigInfo);
    COMPARE_FIELDS(VideoConfigInfo);
    COMPARE_FIELDS(PlaybackConfigInfo);
    COMPARE_FIELDS(SnapshotConfigInfo);
    COMPARE_FIELDS(RecordConfigInfo);
    COMPARE_FIELDS(AlarmConfigInfo);
    COMPARE_FIELDS(AlarmSoundInfo);
    COMPARE_FIELDS(ShortcutKeyConfigInfo);
    COMPARE_FIELDS(TvWallConfigInfo);
    COMPARE_FIELDS(SecurityConfigInfo);
#undef COMPARE_FIELDS
}

void tst_SettingsDocument::FieldsAreListedInTheOrderOfTheDocument()
{
    using namespace LocalConfigLogical;
#define VERIFY_ORDER(Record) QVERIFY(IsListedInOrder<Record>())
    VERIFY_ORDER(Settings);
    VERIFY_ORDER(BasicConfigInfo);
    VERIFY_ORDER(VideoConfigInfo);
    VERIFY_ORDER(PlaybackConfigInfo);
    VERIFY_ORDER(SnapshotConfigInfo);
    VERIFY_ORDER(RecordConfigInfo);
    VERIFY_ORDER(AlarmConfigInfo);
    VERIFY_ORDER(AlarmSoundInfo);
    VERIFY_ORDER(ShortcutKeyConfigInfo);
    VERIFY_ORDER(TvWallConfigInfo);
    VERIFY_ORDER(SecurityConfigInfo);
#undef VERIFY_ORDER
}

void tst_SettingsDocument::TheSameSettingsGiveTheSameBytes()
{
    SettingsDocument document;
    document.Parse(Document(ChangedSettings()));
    QCOMPARE(document.Serialize(), Document(ChangedSettings()));
}

void tst_SettingsDocument::NamesOfTheDocument()
{
    const QJsonObject root = FromBytes(SettingsDocument().Serialize());
    QCOMPARE(root.value("version").toInt(), 1);
    QCOMPARE(root.value("sections").toObject().keys(), (QStringList{"alarm", "basic", "playback", "record", "security",
                                                                    "shortcutKey", "snapshot", "tvWall", "video"}));
    const QJsonObject basic = root.value("sections").toObject().value("basic").toObject();
    QCOMPARE(basic.size(), 28);
    QCOMPARE(basic.value("clientSize").toInt(), 2);
    QCOMPARE(basic.value("hostOwned2").toInt(), 1000);
}

void tst_SettingsDocument::AMissingKeyStandsForTheDefault()
{
    SettingsDocument document;
    QCOMPARE(document.Parse(R"({"version": 1, "sections": {"basic": {"autoLogin": true}}})"), SettingsDocument::Good);
    Settings expected;
    expected.basic.autoLogin = true;
    QVERIFY(document.GetSettings() == expected);
}

void tst_SettingsDocument::UnknownKeysSurvive()
{
    const QByteArray content = R"({"version": 1, "other": [1, {"a": null}], "sections": {"future": {"x": 1},
        "basic": {"clientSize": 1, "new": "field"},
        "alarm": {"flashCategories": {"5": true, "note": "kept"},
                  "alarmSounds": {"7": {"alarmType": 7, "volume": 11}}}}})";
    SettingsDocument document;
    QCOMPARE(document.Parse(content), SettingsDocument::Good);
    Settings settings = document.GetSettings();
    settings.basic.clientSize = 3;
    document.SetSettings(settings);
    const QJsonObject root = FromBytes(document.Serialize());
    QCOMPARE(root.value("other"), FromBytes(content).value("other"));
    const QJsonObject sections = root.value("sections").toObject();
    QCOMPARE(sections.value("future").toObject().value("x").toInt(), 1);
    QCOMPARE(sections.value("basic").toObject().value("new").toString(), QString("field"));
    QCOMPARE(sections.value("basic").toObject().value("clientSize").toInt(), 3);
    const QJsonObject alarm = sections.value("alarm").toObject();
    QCOMPARE(alarm.value("flashCategories").toObject().value("note").toString(), QString("kept"));
    QCOMPARE(alarm.value("alarmSounds").toObject().value("7").toObject().value("volume").toInt(), 11);
}

void tst_SettingsDocument::ARemovedMapEntryIsGone()
{
    SettingsDocument document;
    document.Parse(R"({"version": 1, "sections": {"alarm": {"flashCategories": {"5": true, "6": true}}}})");
    Settings settings = document.GetSettings();
    settings.alarm.flashCategories.erase(5);
    document.SetSettings(settings);
    SettingsDocument again;
    QCOMPARE(again.Parse(document.Serialize()), SettingsDocument::Good);
    QCOMPARE(again.GetSettings().alarm.flashCategories, (std::map<std::int32_t, bool>{{6, true}}));
}

void tst_SettingsDocument::BytesThatAreNoTextSurvive()
{
    for (const std::string& bytes :
         {std::string("\xff\xfe\x80"), std::string("a\0b", 3), std::string("\xed\xa0\x80"), std::string("\xc0\xaf"),
          std::string("\xef\xbb\xbf"
                      "bom"),
          std::string("\"\\\n")})
    {
        Settings settings;
        settings.snapshot.picturePath = bytes;
        SettingsDocument document;
        document.SetSettings(settings);
        SettingsDocument again;
        QCOMPARE(again.Parse(document.Serialize()), SettingsDocument::Good);
        QVERIFY(again.GetSettings().snapshot.picturePath == bytes);
    }
}

void tst_SettingsDocument::ExtremeNumbers()
{
    Settings settings;
    settings.basic.hostOwned1 = 4294967295u;
    settings.basic.clientSize = std::numeric_limits<std::int32_t>::min();
    settings.basic.hostOwned28 = std::numeric_limits<std::int32_t>::max();
    settings.alarm.flashCategories[std::numeric_limits<std::int32_t>::min()] = true;
    settings.alarm.alarmSounds[1].hostOwned4 = 255;
    SettingsDocument document;
    document.SetSettings(settings);
    SettingsDocument again;
    QCOMPARE(again.Parse(document.Serialize()), SettingsDocument::Good);
    QVERIFY(again.GetSettings() == settings);
}

void tst_SettingsDocument::WrongTypesAreFound_data()
{
    QTest::addColumn<QString>("strPath");
    QTest::addColumn<QByteArray>("content");
    for (const SWrongDocument& wrong : WrongDocuments())
    {
        QTest::newRow(wrong.name.constData()) << wrong.strPath << wrong.content;
    }
}

void tst_SettingsDocument::WrongTypesAreFound()
{
    QFETCH(QString, strPath);
    QFETCH(QByteArray, content);
    SettingsDocument document;
    QString strError;
    QVERIFY(document.Parse(content, &strError) != SettingsDocument::Good);
    QVERIFY(document.GetSettings() == Settings());
    if (strPath != "version")
    {
        QVERIFY2(strError.contains(strPath.section('/', -1)), qPrintable(strError));
    }
}

void tst_SettingsDocument::DamagedDocumentsAreFound_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("blank") << QByteArray(" \n");
    QTest::newRow("null bytes") << QByteArray(200, '\0');
    QTest::newRow("text") << QByteArray("hello");
    QTest::newRow("array") << QByteArray("[]");
    QTest::newRow("null") << QByteArray("null");
    QTest::newRow("empty object") << QByteArray("{}");
    QTest::newRow("no version") << QByteArray(R"({"sections": {}})");
    QTest::newRow("no sections") << QByteArray(R"({"version": 1})");
    QTest::newRow("version 0") << QByteArray(R"({"version": 0, "sections": {}})");
    QTest::newRow("version text") << QByteArray(R"({"version": "1", "sections": {}})");
    QTest::newRow("version fraction") << QByteArray(R"({"version": 1.5, "sections": {}})");
    QTest::newRow("trailing garbage") << Document(ChangedSettings()) + "x";
    QTest::newRow("not UTF-8") << QByteArray("{\"version\": 1, \"sections\": {\"\xff\xfe\": 1}}");
    QTest::newRow("infinity") << QByteArray(R"({"version": 1, "sections": {"basic": {"skin": 1e999}}})");
    QTest::newRow("nested too deep") << QByteArray(5000, '[') + QByteArray(5000, ']');
    const QByteArray good = Document(ChangedSettings());
    for (int nSize : {1, 2, good.size() / 3, good.size() / 2, good.size() - 3})
    {
        QTest::addRow("cut off at %d", nSize) << good.left(nSize);
    }
}

void tst_SettingsDocument::DamagedDocumentsAreFound()
{
    QFETCH(QByteArray, content);
    SettingsDocument document;
    QString strError;
    QCOMPARE(document.Parse(content, &strError), SettingsDocument::Damaged);
    QVERIFY(!strError.isEmpty());
    QVERIFY(!strError.contains('\n'));
}

void tst_SettingsDocument::AByteOrderMarkIsNoDamage()
{
    SettingsDocument document;
    QCOMPARE(document.Parse("\xef\xbb\xbf" + Document(ChangedSettings())), SettingsDocument::Good);
    QVERIFY(document.GetSettings() == ChangedSettings());
}

void tst_SettingsDocument::ANewerDocumentIsTold()
{
    SettingsDocument document;
    QCOMPARE(document.Parse(R"({"version": 2, "sections": []})"), SettingsDocument::Newer);
}

void tst_SettingsDocument::ADamagedDocumentChangesNothing()
{
    SettingsDocument document;
    document.Parse(Document(ChangedSettings()));
    QCOMPARE(document.Parse(R"({"version": 1, "sections": {"basic": {"skin": 2, "clientSize": "big"}}})"),
             SettingsDocument::Damaged);
    QVERIFY(document.GetSettings() == ChangedSettings());
}

void tst_SettingsDocument::ItIsWrittenAsQtWritesIt()
{
    // Earlier versions have written documents with Qt, and the same settings are to give the same bytes.
    const QByteArray content = R"({"version": 1, "sections": {}, "unknown": {"object": {}, "array": [], "": "",
        "list": [1, [2], {"a": null}], "text": "\"\\\/\b\f\n\r\t\u0001 \u5ba2 \ud83c\udfa5", "half": 1.5,
        "small": 1e-300, "negative": -3, "yes": true, "no": false}})";
    SettingsDocument document;
    QCOMPARE(document.Parse(content), SettingsDocument::Good);
    const QByteArray written = document.Serialize();
    QCOMPARE(written, AsQtWritesIt(written));
    QCOMPARE(FromBytes(written).value("unknown"), FromBytes(content).value("unknown"));
}

void tst_SettingsDocument::EveryFieldIsWrittenAsQtWritesIt()
{
    QCOMPARE(Document(ChangedSettings()), AsQtWritesIt(Document(ChangedSettings())));
    Settings settings;
    for (const char* pszText :
         {"", " ~", "\x7f", "\"\\/", "\t\n", "\xc3\xa9", "\xe5\xae\xa2", "\xf0\x9f\x8e\xa5", "\xff"})
    {
        settings.record.recordPath += pszText;
        QCOMPARE(Document(settings), AsQtWritesIt(Document(settings)));
        settings.snapshot.picturePath = pszText;
        QCOMPARE(Document(settings), AsQtWritesIt(Document(settings)));
    }
}

void tst_SettingsDocument::KeysOfMapsAreWrittenInTheOrderOfTheirTexts()
{
    Settings settings;
    for (std::int64_t nPower = 1; nPower <= 1000000000; nPower *= 10)
    {
        for (std::int64_t nNumber : {nPower - 1, nPower, nPower + 1, 2 * nPower})
        {
            settings.alarm.flashCategories[std::int32_t(nNumber)] = true;
            settings.alarm.flashCategories[std::int32_t(-nNumber)] = true;
        }
    }
    settings.alarm.flashCategories[std::numeric_limits<std::int32_t>::min()] = true;
    settings.alarm.flashCategories[std::numeric_limits<std::int32_t>::max()] = true;
    QCOMPARE(Document(settings), AsQtWritesIt(Document(settings)));
}

void tst_SettingsDocument::UnknownKeysKeepTheirPlacesAtEveryLevel_data()
{
    QTest::addColumn<QString>("strPath");
    for (const char* pszPath :
         {"", "sections", "sections/basic", "sections/video", "sections/playback", "sections/snapshot",
          "sections/record", "sections/alarm", "sections/alarm/flashCategories", "sections/alarm/alarmSounds",
          "sections/alarm/alarmSounds/3", "sections/shortcutKey", "sections/tvWall", "sections/security"})
    {
        QTest::newRow(pszPath) << QString(pszPath);
    }
}

void tst_SettingsDocument::UnknownKeysKeepTheirPlacesAtEveryLevel()
{
    QFETCH(QString, strPath);
    const QJsonObject root = FromBytes(Document(ChangedSettings()));
    QJsonObject object = root;
    for (const QString& strKey : strPath.split('/', Qt::SkipEmptyParts))
    {
        object = object.value(strKey).toObject();
    }
    // Before, between and after the known ones, each of them alone and all together.
    QJsonObject all = object;
    const QJsonObject value{{"b", 1.5}, {"a", QJsonArray{"text", QJsonValue(), QJsonObject()}}};
    for (const QString& strName : QStringList{"", "!", "m", "zzz", "\u5ba2"} + object.keys())
    {
        for (const QString& strKey : {strName + "0a", strName.chopped(strName.isEmpty() ? 0 : 1) + "~"})
        {
            QJsonObject one = object;
            one.insert(strKey, value);
            all.insert(strKey, value);
            for (const QJsonObject& changed : {one, all})
            {
                const QByteArray content = ToBytes(Replace(root, strPath.split('/', Qt::SkipEmptyParts), changed));
                SettingsDocument document;
                QCOMPARE(document.Parse(content), SettingsDocument::Good);
                QCOMPARE(document.Serialize(), content);
                SettingsDocument merged;
                merged.SetSettings(ChangedSettings());
                merged.TakeUnknownKeys(document);
                QCOMPARE(merged.Serialize(), content);
            }
        }
    }
}

void tst_SettingsDocument::UnknownKeysOfARemovedMapEntryComeBackWithIt()
{
    const QByteArray content = R"({"version": 1, "sections": {"alarm": {"alarmSounds": {"7": {"volume": 11}}}}})";
    SettingsDocument document;
    QCOMPARE(document.Parse(content), SettingsDocument::Good);
    const QByteArray before = document.Serialize();
    const Settings settings = document.GetSettings();
    document.SetSettings(Settings());
    QVERIFY(!document.Serialize().contains("volume"));
    document.SetSettings(settings);
    QCOMPARE(document.Serialize(), before);
}

void tst_SettingsDocument::LargeNumbersOfUnknownKeysSurvive()
{
    const QByteArray numbers = R"({"a": 9007199254740993, "b": [-9007199254740995, {"c": 9223372036854775807}]})";
    const QByteArray content = R"({"version": 1, "sections": {"alarm": {"flashCategories": {"7": true, "later": )" +
                               numbers + R"(}, "later": )" + numbers + R"(}}, "later": )" + numbers + "}";
    SettingsDocument document;
    QCOMPARE(document.Parse(content), SettingsDocument::Good);
    SettingsDocument merged;
    merged.TakeUnknownKeys(document);
    for (const QByteArray& written : {document.Serialize(), merged.Serialize()})
    {
        for (const char* pszNumber : {"9007199254740993", "-9007199254740995", "9223372036854775807"})
        {
            QCOMPARE(written.count(pszNumber), 3);
        }
    }
}

void tst_SettingsDocument::LargeMapsTakeTheirShareOfTime()
{
    const auto time = [](int nEntries) {
        Settings settings;
        for (int n = 0; n < nEntries; ++n)
        {
            settings.alarm.flashCategories[n] = true;
        }
        SettingsDocument document;
        document.SetSettings(settings);
        QElapsedTimer timer;
        timer.start();
        SettingsDocument read;
        const bool bRead = read.Parse(document.Serialize()) == SettingsDocument::Good && read.GetSettings() == settings;
        SettingsDocument merged;
        merged.TakeUnknownKeys(read);
        merged.TakeUnknownKeys(document);
        return bRead ? double(timer.nsecsElapsed()) : -1.0;
    };
    const double dFew = std::min(time(20000), time(20000));
    const double dMany = time(200000);
    QVERIFY(dFew > 0 && dMany > 0);
    QVERIFY2(dMany < 40 * dFew, qPrintable(QString("%1 times as long").arg(dMany / dFew)));
}

void tst_SettingsDocument::MissingRights_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("bAll");
    QTest::addColumn<QSet<int>>("setRights");
    QTest::newRow("none") << QByteArray("[]") << false << QSet<int>();
    QTest::newRow("some") << QByteArray("[26, 45, 26]") << false << QSet<int>{26, 45};
    QTest::newRow("whole all the same") << QByteArray("[26.0]") << false << QSet<int>{26};
    for (const char* pszValue : {"26", "\"26\"", "{}", "null", "true", "[\"26\"]", "[26, null]", "[26.5]", "[0]",
                                 "[-26]", "[2147483648]", "[[26]]"})
    {
        QTest::newRow(pszValue) << QByteArray(pszValue) << true << QSet<int>();
    }
}

void tst_SettingsDocument::MissingRights()
{
    QFETCH(QByteArray, value);
    QFETCH(bool, bAll);
    QFETCH(QSet<int>, setRights);
    SettingsDocument document;
    QVERIFY(!document.GetMissingRights().bAll);
    QCOMPARE(document.Parse(R"({"version": 1, "sections": {}, "missingRights": )" + value + "}"),
             SettingsDocument::Good);
    QCOMPARE(document.GetMissingRights().bAll, bAll);
    if (!bAll)
    {
        QCOMPARE(document.GetMissingRights().setRights, setRights);
    }
}

QTEST_APPLESS_MAIN(tst_SettingsDocument)

#include "tst_SettingsDocument.moc"
