#include "support/WorkFolder.h"

#include <UICommonModule/CErrorCode.h>
#include <UICommonModule/CGlobalInfo.h>
#include <UICommonModule/Pxa.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using UICommonMdl::CErrorCode;
using UICommonMdl::CGlobalInfo;

class tst_Pxa : public QObject
{
    Q_OBJECT

private slots:
    void SkinComesFromTheIniFileOnce_data();
    void SkinComesFromTheIniFileOnce();
    void LanguageComesFromTheIniFileOnce_data();
    void LanguageComesFromTheIniFileOnce();
    void LanguageIsWhatWasSet();
    void SkinPaths();
    void UnknownSkinsCountAsDark();
    void ThePrefixLeadsIntoTheSkin();
    void ResourceFolderFromTheEnvironment();
    void ResourceFolderWithoutTheEnvironment();

    void StyleSheetIsRead();
    void StyleSheetIsMirrored_data();
    void StyleSheetIsMirrored();
    void AMissingStyleSheetLeavesTheText();
    void AFolderIsNoStyleSheet();
    void AnUnchangedStyleSheetIsReadOnce();
    void AChangedStyleSheetIsReadAgain();

    void ToolTipWhenTheTextIsWider_data();
    void ToolTipWhenTheTextIsWider();
    void TheToolTipComesAsSoonAsTextIsHidden_data();
    void TheToolTipComesAsSoonAsTextIsHidden();
    void ToolTipGoesWhenTheTextFits();
    void AControlWithoutTextKeepsItsToolTip();
    void APasswordIsNotTold();
    void AWrappedTextNeedsNoToolTip();
    void AnotherToolTipStays();
    void MnemonicsAreLeftOut();
    void NullIsHarmless();

    void ErrorTexts_data();
    void ErrorTexts();
    void EveryCodeHasADescriptionOfItsOwn();

private:
    CWorkFolder m_folder;
};

namespace
{

/// What a fresh process, started with --print, finds in a working folder: "<skin> <language>".
QString AskFreshProcess(const QByteArray& ini)
{
    const QTemporaryDir folder;
    if (!ini.isEmpty())
    {
        QFile file(folder.filePath("Localcfg.ini"));
        if (!file.open(QIODevice::WriteOnly))
        {
            return "no file";
        }
        file.write(ini);
    }
    QProcess process;
    process.setWorkingDirectory(folder.path());
    process.start(QCoreApplication::applicationFilePath(), {"--print"});
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

} // namespace

void tst_Pxa::SkinComesFromTheIniFileOnce_data()
{
    QTest::addColumn<QByteArray>("ini");
    QTest::addColumn<QString>("strSkin");
    QTest::newRow("none") << QByteArray() << "DustyBlue";
    QTest::newRow("dark") << QByteArray("[Skin]\nversion=DustyBlue\n") << "DustyBlue";
    QTest::newRow("white") << QByteArray("[Skin]\nversion=White\n") << "White";
    QTest::newRow("unknown") << QByteArray("[Skin]\nversion=../../etc\n") << "DustyBlue";
    QTest::newRow("damaged") << QByteArray("\xff\xfe[[[\n=\n") << "DustyBlue";
}

void tst_Pxa::SkinComesFromTheIniFileOnce()
{
    QFETCH(QByteArray, ini);
    QFETCH(QString, strSkin);
    QCOMPARE(AskFreshProcess(ini).section(' ', 0, 0), strSkin);
}

void tst_Pxa::LanguageComesFromTheIniFileOnce_data()
{
    QTest::addColumn<QByteArray>("ini");
    QTest::addColumn<QString>("strLanguage");
    QTest::newRow("none") << QByteArray() << "en";
    QTest::newRow("0") << QByteArray("[Language]\ntype=0\n") << "en";
    QTest::newRow("1") << QByteArray("[Language]\ntype=1\n") << "zh_CN";
    QTest::newRow("2") << QByteArray("[Language]\ntype=2\n") << "es";
    QTest::newRow("3") << QByteArray("[Language]\ntype=3\n") << "ar";
    QTest::newRow("4") << QByteArray("[Language]\ntype=4\n") << "en";
    QTest::newRow("-1") << QByteArray("[Language]\ntype=-1\n") << "en";
    QTest::newRow("word") << QByteArray("[Language]\ntype=zh\n") << "en";
}

void tst_Pxa::LanguageComesFromTheIniFileOnce()
{
    QFETCH(QByteArray, ini);
    QFETCH(QString, strLanguage);
    QCOMPARE(AskFreshProcess(ini).section(' ', 1, 1), strLanguage);
}

void tst_Pxa::LanguageIsWhatWasSet()
{
    CGlobalInfo::SetClientStrLanguage("zh_CN");
    QCOMPARE(CGlobalInfo::GetClientStrLanguage(), QString("zh_CN"));
    CGlobalInfo::SetClientStrLanguage("en");
    QCOMPARE(CGlobalInfo::GetClientStrLanguage(), QString("en"));
}

void tst_Pxa::SkinPaths()
{
    Pxa::SetSkin("White");
    const QString strRoot = CGlobalInfo::GetResourcePath() + "/skin/White/";
    QCOMPARE(Pxa::GetSkinPath("LocalConfig", "CGroupBox.qss"), strRoot + "LocalConfig/CGroupBox.qss");
    QCOMPARE(Pxa::GetSkinPath("public", QString()), strRoot + "public/");
    QCOMPARE(Pxa::GetSkinPath("LocalConfig/public", "cmb_text.png"), strRoot + "LocalConfig/public/cmb_text.png");
    Pxa::SetSkin("DustyBlue");
    QVERIFY(Pxa::GetSkinPath("public", QString()).endsWith("/skin/DustyBlue/public/"));
}

void tst_Pxa::UnknownSkinsCountAsDark()
{
    for (const char* pszSkin : {"", "white", "Blue", "../White"})
    {
        Pxa::SetSkin(pszSkin);
        QCOMPARE(Pxa::GetSkin(), QString("DustyBlue"));
    }
}

void tst_Pxa::ThePrefixLeadsIntoTheSkin()
{
    for (const char* pszSkin : {"White", "DustyBlue"})
    {
        Pxa::SetSkin(pszSkin);
        QCOMPARE(QFileInfo("skin:public/KvGui.qss").canonicalFilePath(),
                 QFileInfo(Pxa::GetSkinPath("public", "KvGui.qss")).canonicalFilePath());
        QVERIFY(QFileInfo::exists("skin:public/KvGui.qss"));
    }
}

void tst_Pxa::ResourceFolderFromTheEnvironment()
{
    const QByteArray before = qgetenv("KV_CLIENT_RESOURCES");
    qputenv("KV_CLIENT_RESOURCES", "/some/folder/");
    const QString strPath = CGlobalInfo::GetResourcePath();
    qputenv("KV_CLIENT_RESOURCES", before);
    QCOMPARE(strPath, QString("/some/folder"));
}

void tst_Pxa::ResourceFolderWithoutTheEnvironment()
{
    const QByteArray before = qgetenv("KV_CLIENT_RESOURCES");
    qunsetenv("KV_CLIENT_RESOURCES");
    const QString strPath = CGlobalInfo::GetResourcePath();
    qputenv("KV_CLIENT_RESOURCES", before);
    const QString strShared = QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../share/local-config-client");
    QCOMPARE(strPath, QDir(strShared).exists() ? strShared : QCoreApplication::applicationDirPath());
}

namespace
{

void Put(const QString& strPath, const QByteArray& content)
{
    QFile file(strPath);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

} // namespace

void tst_Pxa::StyleSheetIsRead()
{
    Put("a.qss", "QLabel { color: red } /* \xe5\xae\xa2 */");
    QString strText;
    QVERIFY(Pxa::loadStyleSheet("a.qss", strText));
    QCOMPARE(strText, QString::fromUtf8("QLabel { color: red } /* 客 */"));
}

void tst_Pxa::StyleSheetIsMirrored_data()
{
    QTest::addColumn<QString>("strSheet");
    QTest::addColumn<QString>("strMirrored");
    const auto add = [](const char* pszSheet, const char* pszMirrored) {
        QTest::newRow(pszSheet) << QStringLiteral("A {\n    %1;\n}\n").arg(pszSheet)
                                << QStringLiteral("A {\n    %1;\n}\n").arg(pszMirrored);
    };
    const auto addUnchanged = [add](const char* pszSheet) { add(pszSheet, pszSheet); };
    add("padding: 1px 2px 3px 4px", "padding: 1px 4px 3px 2px");
    add("margin: 1px 2px 3px 4px", "margin: 1px 4px 3px 2px");
    add("padding-left: 1px; padding-right: 2px", "padding-right: 1px; padding-left: 2px");
    add("border-right: 1px solid red", "border-left: 1px solid red");
    add("qlineargradient(x1: 0, y1: 0, x2: 1, y2: 0, stop: 0 red)",
        "qlineargradient(x1: 1, y1: 0, x2: 0, y2: 0, stop: 0 red)");
    addUnchanged("padding: 1px 2px");
    addUnchanged("padding: 1px;\n    margin: 2px;\n    border: none");
    addUnchanged("subcontrol-position: top left");
    addUnchanged("left: 24px");
    addUnchanged("image: url(skin:public/arrow-left.svg)");
}

void tst_Pxa::StyleSheetIsMirrored()
{
    QFETCH(QString, strSheet);
    QFETCH(QString, strMirrored);
    Put("mirrored.qss", strSheet.toUtf8());
    QString strText;
    QVERIFY(Pxa::loadStyleSheet("mirrored.qss", strText));
    QCOMPARE(strText, strSheet);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    QVERIFY(Pxa::loadStyleSheet("mirrored.qss", strText));
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(strText, strMirrored);
    QVERIFY(Pxa::loadStyleSheet("mirrored.qss", strText));
    QCOMPARE(strText, strSheet);
}

void tst_Pxa::AMissingStyleSheetLeavesTheText()
{
    QString strText = "before";
    QVERIFY(!Pxa::loadStyleSheet("none.qss", strText));
    QCOMPARE(strText, QString("before"));
}

void tst_Pxa::AFolderIsNoStyleSheet()
{
    QVERIFY(QDir().mkpath("folder.qss"));
    QString strText;
    QVERIFY(!Pxa::loadStyleSheet("folder.qss", strText));
}

void tst_Pxa::AnUnchangedStyleSheetIsReadOnce()
{
    // Other bytes, but the same size and time: only somebody who reads again sees them.
    Put("once.qss", "one");
    QFile file("once.qss");
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QDateTime time = file.fileTime(QFileDevice::FileModificationTime);
    QString strText;
    QVERIFY(Pxa::loadStyleSheet("once.qss", strText));
    file.write("two");
    QVERIFY(file.flush());
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    file.close();
    QVERIFY(Pxa::loadStyleSheet("once.qss", strText));
    QCOMPARE(strText, QString("one"));
}

void tst_Pxa::AChangedStyleSheetIsReadAgain()
{
    Put("changed.qss", "one");
    QString strText;
    QVERIFY(Pxa::loadStyleSheet("changed.qss", strText));
    Put("changed.qss", "longer");
    QVERIFY(Pxa::loadStyleSheet("changed.qss", strText));
    QCOMPARE(strText, QString("longer"));
    QVERIFY(QFile::remove("changed.qss"));
    QVERIFY(!Pxa::loadStyleSheet("changed.qss", strText));
}

void tst_Pxa::ToolTipWhenTheTextIsWider_data()
{
    QTest::addColumn<QString>("strClass");
    QTest::newRow("check box") << "QCheckBox";
    QTest::newRow("label") << "QLabel";
    QTest::newRow("combo box") << "QComboBox";
}

void tst_Pxa::ToolTipWhenTheTextIsWider()
{
    QFETCH(QString, strClass);
    QScopedPointer<QWidget> pControl;
    const QString strText = "A text of some length";
    if (strClass == "QCheckBox")
    {
        pControl.reset(new QCheckBox(strText));
    }
    else if (strClass == "QLabel")
    {
        pControl.reset(new QLabel(strText));
    }
    else
    {
        auto* pCombo = new QComboBox;
        pCombo->addItem(strText);
        pControl.reset(pCombo);
    }
    pControl->resize(600, 30);
    Pxa::QCommon::AddToolTipByControlWidth(pControl.data());
    QVERIFY(pControl->toolTip().isEmpty());
    pControl->resize(30, 30);
    Pxa::QCommon::AddToolTipByControlWidth(pControl.data());
    QCOMPARE(pControl->toolTip(), strText);
}

void tst_Pxa::TheToolTipComesAsSoonAsTextIsHidden_data()
{
    QTest::addColumn<bool>("bCombo");
    QTest::newRow("combo box, behind its arrow") << true;
    QTest::newRow("line edit, behind its button") << false;
}

void tst_Pxa::TheToolTipComesAsSoonAsTextIsHidden()
{
    QFETCH(bool, bCombo);
    const QString strText = "A text of some length";
    QScopedPointer<QWidget> pControl;
    if (bCombo)
    {
        auto* pCombo = new QComboBox;
        pCombo->addItem(strText);
        pControl.reset(pCombo);
    }
    else
    {
        auto* pEdit = new QLineEdit(strText);
        pEdit->setTextMargins(0, 0, 28, 0);
        pControl.reset(pEdit);
    }
    // As wide as the text alone: the control's own furniture covers the end of it.
    pControl->resize(pControl->fontMetrics().horizontalAdvance(strText) + 10, 30);
    Pxa::QCommon::AddToolTipByControlWidth(pControl.data());
    QCOMPARE(pControl->toolTip(), strText);
    pControl->resize(pControl->width() + 60, 30);
    Pxa::QCommon::AddToolTipByControlWidth(pControl.data());
    QVERIFY(pControl->toolTip().isEmpty());
}

void tst_Pxa::AControlWithoutTextKeepsItsToolTip()
{
    QCheckBox box;
    box.setToolTip("What it is for");
    box.resize(1, 1);
    Pxa::QCommon::AddToolTipByControlWidth(&box);
    QCOMPARE(box.toolTip(), QString("What it is for"));
}

void tst_Pxa::APasswordIsNotTold()
{
    QLineEdit edit("A secret of some length");
    edit.setEchoMode(QLineEdit::Password);
    edit.resize(20, 30);
    Pxa::QCommon::AddToolTipByControlWidth(&edit);
    QVERIFY(edit.toolTip().isEmpty());
}

void tst_Pxa::ToolTipGoesWhenTheTextFits()
{
    QLabel label("A text of some length");
    label.resize(20, 20);
    Pxa::QCommon::AddToolTipByControlWidth(&label);
    label.resize(600, 20);
    Pxa::QCommon::AddToolTipByControlWidth(&label);
    QVERIFY(label.toolTip().isEmpty());
}

void tst_Pxa::AWrappedTextNeedsNoToolTip()
{
    QLabel label("A text of some length");
    label.setWordWrap(true);
    label.resize(30, 200);
    Pxa::QCommon::AddToolTipByControlWidth(&label);
    QVERIFY(label.toolTip().isEmpty());
}

void tst_Pxa::AnotherToolTipStays()
{
    QLabel label("Text");
    for (const char* pszToolTip : {"Something else", "Text"})
    {
        label.setToolTip(pszToolTip);
        label.resize(600, 20);
        Pxa::QCommon::AddToolTipByControlWidth(&label);
        QCOMPARE(label.toolTip(), QString(pszToolTip));
    }
}

void tst_Pxa::MnemonicsAreLeftOut()
{
    QCheckBox box("&Save && close this window");
    box.resize(10, 20);
    Pxa::QCommon::AddToolTipByControlWidth(&box);
    QCOMPARE(box.toolTip(), QString("Save & close this window"));
}

void tst_Pxa::NullIsHarmless()
{
    Pxa::QCommon::AddToolTipByControlWidth(nullptr);
    QWidget plain;
    plain.setToolTip("Plain");
    Pxa::QCommon::AddToolTipByControlWidth(&plain);
    QCOMPARE(plain.toolTip(), QString("Plain"));
}

void tst_Pxa::ErrorTexts_data()
{
    QTest::addColumn<int>("nCode");
    QTest::addColumn<bool>("bDescription");
    QTest::addColumn<bool>("bCode");
    QTest::addColumn<QString>("strText");
    QTest::newRow("both") << int(CErrorCode::DiskFull) << true << true << "Failed: the disk is full (code 2)";
    QTest::newRow("description") << int(CErrorCode::DiskFull) << true << false << "Failed: the disk is full";
    QTest::newRow("code") << int(CErrorCode::DiskFull) << false << true << "Failed (code 2)";
    QTest::newRow("neither") << int(CErrorCode::DiskFull) << false << false << "Failed";
    QTest::newRow("success") << int(CErrorCode::Success) << true << true << "Failed";
    QTest::newRow("unknown") << 4711 << true << true << "Failed: unknown error (code 4711)";
    QTest::newRow("negative") << -1 << true << true << "Failed: unknown error (code -1)";
}

void tst_Pxa::ErrorTexts()
{
    QFETCH(int, nCode);
    QFETCH(bool, bDescription);
    QFETCH(bool, bCode);
    QFETCH(QString, strText);
    QCOMPARE(CErrorCode::GetErroCodeInfor("Failed", nCode, bDescription, bCode), strText);
}

void tst_Pxa::EveryCodeHasADescriptionOfItsOwn()
{
    QSet<QString> setDescriptions;
    for (int nCode = CErrorCode::Unknown; nCode <= CErrorCode::FileMissing; ++nCode)
    {
        setDescriptions.insert(CErrorCode::GetDescription(nCode));
    }
    QCOMPARE(setDescriptions.size(), int(CErrorCode::FileMissing) + 1);
    QVERIFY2(CErrorCode::GetErroCodeInfor("100%1 %2", 2, true, true).startsWith("100%1 %2"), "a text is no template");
}

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    if (application.arguments().contains("--print"))
    {
        QTextStream(stdout) << Pxa::GetSkin() << ' ' << CGlobalInfo::GetClientStrLanguage() << '\n';
        return 0;
    }
    tst_Pxa test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Pxa.moc"
