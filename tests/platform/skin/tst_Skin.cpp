// What both skins must be: complete, legible, and different where the eye must see a difference.

#include "support/Skin.h"
#include "support/SkinColors.h"

#include <KvGui/KvCheckBox.h>
#include <KvGui/KvComboBox.h>
#include <KvGui/KvLineEdit.h>
#include <KvGui/KvMessageBox.h>
#include <KvGui/KvMessageNotify.h>
#include <KvGui/KvPushButton.h>
#include <KvGui/KvRadioButton.h>
#include <KvGui/KvSpinBox.h>
#include <KvGui/KvToolListView.h>
#include <LocalConfig/CGroupBox.h>
#include <UICommonModule/CGlobalInfo.h>
#include <UICommonModule/CPathEdit.h>
#include <UICommonModule/Pxa.h>

#include <QApplication>
#include <QDialog>
#include <QDirIterator>
#include <QImageReader>
#include <QLabel>
#include <QRegularExpression>
#include <QSet>
#include <QVBoxLayout>
#include <QtTest>

namespace
{

QString Root(const QString& strSkin)
{
    return UICommonMdl::CGlobalInfo::GetResourcePath() + "/skin/" + strSkin;
}

QStringList Files(const QString& strSkin)
{
    QStringList listFiles;
    QDirIterator it(Root(strSkin), QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
    {
        listFiles += it.next().mid(Root(strSkin).size() + 1);
    }
    listFiles.sort();
    return listFiles;
}

} // namespace

class tst_Skin : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { qApp->setStyleSheet(QString()); }

    void Contrasts_data();
    void Contrasts();
    void ThePaletteIsTheSkins_data() { SkinRows(); }
    void ThePaletteIsTheSkins();
    void ASkinWithoutAPaletteLeavesTheApplications();
    void BothSkinsHaveTheSameFiles();
    void NavigationPicturesStandInTheirFolders_data();
    void NavigationPicturesStandInTheirFolders();
    void NavigationStatesDiffer_data();
    void NavigationStatesDiffer();
    void PicturesAreDrawnAtEveryScale_data() { SkinRows(); }
    void PicturesAreDrawnAtEveryScale();
    void NothingIsLeftOfTheTemplates_data() { SkinRows(); }
    void NothingIsLeftOfTheTemplates();
    void EveryPictureOfASheetExists_data() { SkinRows(); }
    void EveryPictureOfASheetExists();
    void SheetsAreUnderstood_data() { SkinRows(); }
    void SheetsAreUnderstood();
    void ControlStatesDiffer_data();
    void ControlStatesDiffer();
    void TheFilledButtonIsTheOneThatEnterPresses_data() { SkinRows(); }
    void TheFilledButtonIsTheOneThatEnterPresses();
    void AReadOnlyFieldLooksReadOnly_data() { SkinRows(); }
    void AReadOnlyFieldLooksReadOnly();
    void TheBrowseButtonLooksDisabled_data() { SkinRows(); }
    void TheBrowseButtonLooksDisabled();
    void FailuresLookDifferentFromSuccesses_data() { SkinRows(); }
    void FailuresLookDifferentFromSuccesses();
    void TheErrorLookIsVisible_data() { SkinRows(); }
    void TheErrorLookIsVisible();
    void TheSelectedCardHasABar_data() { SkinRows(); }
    void TheSelectedCardHasABar();
    void CardsLeaveRoomForTheirPages();
    void AButtonHoldsItsTextWithTheFocus_data() { SkinRows(); }
    void AButtonHoldsItsTextWithTheFocus();
};

void tst_Skin::Contrasts_data()
{
    QTest::addColumn<QString>("strSkin");
    QTest::addColumn<QString>("strText");
    QTest::addColumn<QString>("strBackground");
    QTest::addColumn<double>("dLeast");
    struct SPair
    {
        const char* pszText;
        QStringList listBackgrounds;
        double dLeast;
    };
    const SPair arrPairs[] = {
        {"text", {"background", "card", "field", "titleBar", "hover", "pressed", "selected"}, 4.5},
        {"secondaryText", {"background", "card", "field"}, 4.5},
        {"accentText", {"accent", "accentHover", "accentPressed"}, 4.5},
        {"errorText", {"error"}, 4.5},
        {"notificationText", {"notification"}, 4.5},
        {"closeHoverText", {"closeHover"}, 4.5},
        {"disabledText", {"background", "card", "titleBar", "disabledField"}, 4.5},
        {"disabledIcon", {"field", "disabledField"}, 3.0},
        {"scrollHandle", {"background", "card", "field"}, 3.0},
        {"scrollHandleHover", {"background", "card", "field"}, 3.0},
        {"outline", {"card", "field", "background"}, 3.0},
        {"focus", {"card", "field", "background", "selected", "titleBar"}, 3.0},
        {"accent", {"card", "selected"}, 3.0},
        {"error", {"card", "field"}, 3.0},
    };
    for (const char* pszSkin : g_arrSkins)
    {
        for (const SPair& pair : arrPairs)
        {
            for (const QString& strBackground : pair.listBackgrounds)
            {
                QTest::addRow("%s: %s on %s", pszSkin, pair.pszText, qPrintable(strBackground))
                    << pszSkin << pair.pszText << strBackground << pair.dLeast;
            }
        }
    }
}

void tst_Skin::Contrasts()
{
    QFETCH(QString, strSkin);
    QFETCH(QString, strText);
    QFETCH(QString, strBackground);
    QFETCH(double, dLeast);
    const QColor text = PaletteColor(strSkin, strText);
    const QColor background = PaletteColor(strSkin, strBackground);
    QVERIFY(text.isValid() && background.isValid());
    const double dContrast = Contrast(text, background);
    QVERIFY2(dContrast >= dLeast, qPrintable(QString::number(dContrast)));
}

void tst_Skin::ThePaletteIsTheSkins()
{
    QFETCH(QString, strSkin);
    Pxa::SetSkin(strSkin);
    const QPalette palette = Pxa::GetPalette();
    const QMap<QPalette::ColorRole, const char*> mapRoles = {{QPalette::Window, "background"},
                                                             {QPalette::WindowText, "text"},
                                                             {QPalette::Base, "field"},
                                                             {QPalette::Text, "text"},
                                                             {QPalette::Button, "card"},
                                                             {QPalette::ButtonText, "text"},
                                                             {QPalette::Highlight, "accent"},
                                                             {QPalette::HighlightedText, "accentText"},
                                                             {QPalette::ToolTipBase, "notification"},
                                                             {QPalette::ToolTipText, "notificationText"},
                                                             {QPalette::PlaceholderText, "secondaryText"},
                                                             {QPalette::Link, "accent"}};
    for (auto it = mapRoles.cbegin(); it != mapRoles.cend(); ++it)
    {
        QCOMPARE(palette.color(QPalette::Active, it.key()), PaletteColor(strSkin, it.value()));
        QCOMPARE(palette.color(QPalette::Inactive, it.key()), PaletteColor(strSkin, it.value()));
    }
    for (QPalette::ColorRole eRole : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    {
        QCOMPARE(palette.color(QPalette::Disabled, eRole), PaletteColor(strSkin, "disabledText"));
    }
}

void tst_Skin::ASkinWithoutAPaletteLeavesTheApplications()
{
    const QByteArray before = qgetenv("KV_CLIENT_RESOURCES");
    const QTemporaryDir folder;
    qputenv("KV_CLIENT_RESOURCES", folder.path().toLocal8Bit());
    const QPalette palette = Pxa::GetPalette();
    qputenv("KV_CLIENT_RESOURCES", before);
    QCOMPARE(palette, QPalette());
}

void tst_Skin::BothSkinsHaveTheSameFiles()
{
    QCOMPARE(Files("White"), Files("DustyBlue"));
    QVERIFY(Files("White").size() > 35);
}

void tst_Skin::NavigationPicturesStandInTheirFolders_data()
{
    QTest::addColumn<QString>("strFile");
    QTest::addColumn<QString>("strFolder");
    struct SPicture
    {
        const char* pszName;
        const char* pszFolders; // of "-n", "-h" and "-p": public or LocalConfig
    };
    for (const SPicture& picture :
         {SPicture{"general", "PPP"}, SPicture{"video", "LLL"}, SPicture{"playback", "PPL"}, SPicture{"capture", "PLL"},
          SPicture{"videorecord", "PPP"}, SPicture{"alert", "LLL"}, SPicture{"settvwall", "LLL"},
          SPicture{"SecurityConfig", "LLL"}, SPicture{"shortcut", "LLL"}})
    {
        for (int n = 0; n < 3; ++n)
        {
            const QString strFile = QString("%1-%2.svg").arg(picture.pszName).arg("nhp"[n]);
            QTest::newRow(qPrintable(strFile)) << strFile << (picture.pszFolders[n] == 'P' ? "public" : "LocalConfig");
        }
    }
}

void tst_Skin::NavigationPicturesStandInTheirFolders()
{
    QFETCH(QString, strFile);
    QFETCH(QString, strFolder);
    for (const char* pszSkin : g_arrSkins)
    {
        const QStringList listFound = Files(pszSkin).filter(QRegularExpression("(^|/)" + strFile + "$"));
        QCOMPARE(listFound, QStringList{strFolder + '/' + strFile});
    }
}

void tst_Skin::NavigationStatesDiffer_data()
{
    QTest::addColumn<QString>("strName");
    for (const char* pszName :
         {"general", "video", "playback", "capture", "videorecord", "alert", "settvwall", "SecurityConfig", "shortcut"})
    {
        QTest::newRow(pszName) << pszName;
    }
}

void tst_Skin::NavigationStatesDiffer()
{
    QFETCH(QString, strName);
    for (const char* pszSkin : g_arrSkins)
    {
        QSet<QByteArray> setContents;
        for (const QString& strFile : Files(pszSkin).filter(QRegularExpression("/" + strName + "-[nhp]\\.svg$")))
        {
            setContents.insert(Read(Root(pszSkin) + '/' + strFile));
        }
        QCOMPARE(setContents.size(), 3);
    }
}

void tst_Skin::PicturesAreDrawnAtEveryScale()
{
    QFETCH(QString, strSkin);
    for (const QString& strFile : Files(strSkin).filter(QRegularExpression("\\.svg$")))
    {
        QImageReader natural(Root(strSkin) + '/' + strFile);
        const QSize size = natural.size();
        QVERIFY2(size.isValid() && size.width() == size.height(), qPrintable(strFile));
        for (double dScale : {1.0, 1.5, 2.0})
        {
            QImageReader reader(Root(strSkin) + '/' + strFile);
            reader.setScaledSize(size * dScale);
            const QImage image = reader.read().convertToFormat(QImage::Format_ARGB32);
            QCOMPARE(image.size(), size * dScale);
            int nDrawn = 0;
            for (int y = 0; y < image.height(); ++y)
            {
                for (int x = 0; x < image.width(); ++x)
                {
                    nDrawn += qAlpha(image.pixel(x, y)) > 128;
                }
            }
            QVERIFY2(nDrawn > 8 * dScale && nDrawn < image.width() * image.height() * 3 / 4, qPrintable(strFile));
        }
    }
}

void tst_Skin::NothingIsLeftOfTheTemplates()
{
    QFETCH(QString, strSkin);
    for (const QString& strFile : Files(strSkin))
    {
        const QString strText = QString::fromUtf8(Read(Root(strSkin) + '/' + strFile));
        QVERIFY2(!strText.contains(QRegularExpression("@\\w*@|currentColor")), qPrintable(strFile));
        QVERIFY2(!strText.contains(QRegularExpression(":\\s*;|=\"\"")), qPrintable(strFile));
    }
}

void tst_Skin::EveryPictureOfASheetExists()
{
    QFETCH(QString, strSkin);
    Pxa::SetSkin(strSkin);
    int nFound = 0;
    for (const QString& strFile : Files(strSkin).filter(QRegularExpression("\\.qss$")))
    {
        const QString strText = QString::fromUtf8(Read(Root(strSkin) + '/' + strFile));
        auto it = QRegularExpression("url\\(([^)]*)\\)").globalMatch(strText);
        while (it.hasNext())
        {
            const QString strUrl = it.next().captured(1);
            QVERIFY2(QFile::exists(strUrl), qPrintable(strUrl));
            ++nFound;
        }
    }
    QVERIFY(nFound > 8);
}

void tst_Skin::SheetsAreUnderstood()
{
    QFETCH(QString, strSkin);
    static QStringList listWarnings;
    listWarnings.clear();
    const auto before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& strText) { listWarnings += strText; });
    UseSkin(strSkin);
    for (const QString& strFile : Files(strSkin).filter(QRegularExpression("\\.qss$")))
    {
        QWidget widget;
        widget.setStyleSheet(QString::fromUtf8(Read(Root(strSkin) + '/' + strFile)));
        widget.ensurePolished();
    }
    qInstallMessageHandler(before);
    QCOMPARE(listWarnings.filter("stylesheet", Qt::CaseInsensitive), QStringList());
}

void tst_Skin::ControlStatesDiffer_data()
{
    QTest::addColumn<QString>("strSkin");
    QTest::addColumn<QString>("strClass");
    for (const char* pszSkin : g_arrSkins)
    {
        for (const char* pszClass :
             {"KvCheckBox", "KvRadioButton", "KvPushButton", "KvComboBox", "KvLineEdit", "KvSpinBox", "primary button"})
        {
            QTest::addRow("%s: %s", pszSkin, pszClass) << pszSkin << pszClass;
        }
    }
}

void tst_Skin::ControlStatesDiffer()
{
    QFETCH(QString, strSkin);
    QFETCH(QString, strClass);
    UseSkin(strSkin);
    QWidget window;
    auto* pLayout = new QVBoxLayout(&window);
    QWidget* pControl = nullptr;
    if (strClass == "KvCheckBox")
    {
        pControl = new KVGUI::KvCheckBox("Text", &window);
    }
    else if (strClass == "KvRadioButton")
    {
        pControl = new KVGUI::KvRadioButton("Text", &window);
    }
    else if (strClass == "KvComboBox")
    {
        pControl = new KVGUI::KvComboBox(&window);
        static_cast<QComboBox*>(pControl)->addItem("Text");
    }
    else if (strClass == "KvLineEdit")
    {
        pControl = new KVGUI::KvLineEdit(&window);
    }
    else if (strClass == "KvSpinBox")
    {
        pControl = new KVGUI::KvSpinBox(&window);
    }
    else
    {
        auto* pButton = new KVGUI::KvPushButton("Text", &window);
        pButton->setDefault(strClass == "primary button");
        pControl = pButton;
    }
    auto* pOther = new KVGUI::KvPushButton("Other", &window);
    pLayout->addWidget(pControl);
    pLayout->addWidget(pOther);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));

    pOther->setFocus();
    const QSize natural = pControl->size();
    const QImage normal = pControl->grab().toImage();
    pControl->setFocus();
    const QImage focused = pControl->grab().toImage();
    QCOMPARE(pControl->size(), natural);
    pOther->setFocus();
    pControl->setEnabled(false);
    const QImage disabled = pControl->grab().toImage();
    pControl->setEnabled(true);
    QVERIFY(normal != focused);
    QVERIFY(normal != disabled);
    QVERIFY(focused != disabled);
}

void tst_Skin::TheFilledButtonIsTheOneThatEnterPresses()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    const QColor accent = PaletteColor(strSkin, "accent");
    const QMap<QString, int> mapResults = {{"btnOk", 0x400}, {"btnOther", 0x2000}};
    for (const int nDefault : {0, 0x400, 0x2000})
    {
        for (const int nTabs : {0, 1, 2, 3})
        {
            QStringList listFilled;
            QTimer::singleShot(20, qApp, [&] {
                QWidget* pBox = QApplication::activeModalWidget();
                QApplication::setActiveWindow(pBox);
                for (int n = 0; n < nTabs; ++n)
                {
                    QTest::keyClick(pBox->focusWidget(), Qt::Key_Tab);
                }
                for (const QString& strName : mapResults.keys())
                {
                    auto* pButton = pBox->findChild<QWidget*>(strName);
                    const QColor ground = pButton->grab().toImage().pixelColor(6, pButton->height() / 2);
                    listFilled += ground == accent ? QStringList{strName} : QStringList();
                }
                if (listFilled.size() == 1)
                {
                    QTest::keyClick(pBox->focusWidget(), Qt::Key_Return);
                }
                pBox->hide();
            });
            const int nResult = KVGUI::KvMessageBox::ShowInformation(nullptr, "Prompt", "Sure?", 0x2400, nDefault);
            const bool bNone = listFilled.isEmpty(); // nothing is filled while the close button has the focus
            QVERIFY2(bNone ? nTabs > 0 : nResult == mapResults.value(listFilled.first()),
                     qPrintable(QString("%1, %2 tabs: %3").arg(nDefault).arg(nTabs).arg(listFilled.join(' '))));
        }
    }
}

void tst_Skin::AReadOnlyFieldLooksReadOnly()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    QWidget window;
    auto* pLayout = new QVBoxLayout(&window);
    auto* pEditable = new UICommonMdl::CPathEdit(&window);
    auto* pReadOnly = new UICommonMdl::CPathEdit(&window);
    pReadOnly->setReadOnly(true);
    pLayout->addWidget(pEditable);
    pLayout->addWidget(pReadOnly);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const auto pixel = [](QWidget* pEdit, int nY) {
        return pEdit->grab().toImage().pixelColor(pEdit->width() / 2, nY);
    };
    const QColor ground = pixel(pReadOnly, pReadOnly->height() / 2);
    QVERIFY(ground != pixel(pEditable, pEditable->height() / 2));
    QVERIFY(Contrast(PaletteColor(strSkin, "text"), ground) >= 4.5);
    pReadOnly->setFocus();
    QCOMPARE(pixel(pReadOnly, 0), PaletteColor(strSkin, "focus"));
}

void tst_Skin::TheBrowseButtonLooksDisabled()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    UICommonMdl::CPathEdit edit;
    edit.resize(300, 32);
    edit.show();
    const auto strongest = [&] {
        QWidget* pButton = edit.findChild<QWidget*>("btnBrowse");
        QPixmap picture(pButton->size());
        picture.fill(PaletteColor(strSkin, "field"));
        pButton->render(&picture, {}, {}, QWidget::DrawChildren);
        const QImage image = picture.toImage();
        double dContrast = 0;
        for (int nY = 0; nY < image.height(); ++nY)
        {
            for (int nX = 0; nX < image.width(); ++nX)
            {
                dContrast = std::max(dContrast, Contrast(image.pixelColor(nX, nY), PaletteColor(strSkin, "field")));
            }
        }
        return dContrast;
    };
    const double dEnabled = strongest();
    edit.setEnabled(false);
    QVERIFY(strongest() < dEnabled - 1);
}

void tst_Skin::FailuresLookDifferentFromSuccesses()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    QWidget window;
    window.resize(600, 400);
    window.show();
    QApplication::setActiveWindow(&window);
    auto* pNotify = KVGUI::KvSingleton<KVGUI::KvMessageNotify>::Instance();
    pNotify->AddSuccessNotification("Done");
    pNotify->AddTextNotification("Done");
    const QList<QFrame*> listBars = window.findChildren<QFrame*>("notifyBar");
    QCOMPARE(listBars.size(), 2);
    QVERIFY(listBars[0]->findChild<QLabel*>("notifyMark")->grab().toImage() !=
            listBars[1]->findChild<QLabel*>("notifyMark")->grab().toImage());
    const auto ground = [](QFrame* pBar) { return pBar->grab().toImage().pixelColor(6, pBar->height() / 2); };
    QCOMPARE(ground(listBars[0]), PaletteColor(strSkin, "notification"));
    QCOMPARE(ground(listBars[1]), PaletteColor(strSkin, "error"));
}

void tst_Skin::TheErrorLookIsVisible()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    KVGUI::KvLineEdit edit;
    edit.resize(200, 32);
    const QImage normal = edit.grab().toImage();
    edit.showErrorHintNoTip(true);
    const QImage wrong = edit.grab().toImage();
    QVERIFY(wrong != normal);
    QCOMPARE(wrong.pixelColor(wrong.width() / 2, 0), PaletteColor(strSkin, "error"));
}

void tst_Skin::TheSelectedCardHasABar()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    LocalConfig::CGroupBox box(nullptr);
    box.setTitle("Section");
    box.setFixedWidth(662);
    box.resize(662, 200);
    const QColor accent = PaletteColor(strSkin, "accent");
    const QColor card = PaletteColor(strSkin, "card");
    QCOMPARE(box.grab().toImage().pixelColor(2, 100), card);
    box.SetSelect(true);
    const QImage selected = box.grab().toImage();
    QCOMPARE(selected.pixelColor(2, 100), accent);
    QCOMPARE(selected.pixelColor(10, 100), card);
    box.SetSelect(false);
    QCOMPARE(box.grab().toImage().pixelColor(2, 100), card);
}

void tst_Skin::CardsLeaveRoomForTheirPages()
{
    UseSkin("White");
    LocalConfig::CGroupBox box(nullptr);
    box.setTitle("Section");
    auto* pLayout = new QVBoxLayout(&box);
    pLayout->setContentsMargins(0, 0, 0, 0);
    auto* pPage = new QWidget(&box);
    pLayout->addWidget(pPage);
    box.setFixedSize(662, 462);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QVERIFY2(pPage->height() >= 440, qPrintable(QString::number(pPage->height())));
    QVERIFY(pPage->width() >= 658);
}

/// Enter presses the one that has the focus, and the skins write its text in bold.
void tst_Skin::AButtonHoldsItsTextWithTheFocus()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    QDialog dialog;
    auto* pButton = new KVGUI::KvPushButton("Predeterminados", &dialog);
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    pButton->setFocus();
    QVERIFY(pButton->isDefault());
    const auto textWidth = [pButton](int nRoom) {
        pButton->resize(pButton->sizeHint() + QSize(nRoom, 0));
        const QImage image = pButton->grab().toImage();
        const QRect inside = image.rect().adjusted(6, 6, -6, -6);
        const QColor ground = image.pixelColor(inside.topLeft());
        QSet<int> setColumns;
        for (int nX = inside.left(); nX <= inside.right(); ++nX)
        {
            for (int nY = inside.top(); nY <= inside.bottom(); ++nY)
            {
                if (Contrast(image.pixelColor(nX, nY), ground) > 1.5)
                {
                    setColumns += nX;
                }
            }
        }
        return setColumns.size();
    };
    QVERIFY(textWidth(100) > 50);
    QCOMPARE(textWidth(0), textWidth(100));
}

QTEST_MAIN(tst_Skin)

#include "tst_Skin.moc"
