// Writes pictures of everything that the dialog shows into a folder: bench-pictures FOLDER SKIN. ./bench/same-pictures
// compares those of two revisions.

#include "Filled.h"
#include "Subjects.h"

#include <LocalConfig/CGroupBox.h>
#include <UICommonModule/Pxa.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <cstdio>

namespace
{

constexpr int g_nLayoutTime = 120; // milliseconds until the dialog has computed its final layout

class CPictures
{
public:
    explicit CPictures(const QString& strFolder)
        : m_folder(strFolder)
    {}

    void Write(const QString& strName, QWidget& widget, const QRect& area = QRect(QPoint(), QSize(-1, -1)))
    {
        QApplication::processEvents();
        if (!widget.grab(area).save(m_folder.filePath(strName + ".png")))
        {
            qFatal("%s cannot be written", qPrintable(strName));
        }
    }

    void WriteBoxes(const QString& strState, QDialog& dialog)
    {
        for (auto* pBox : dialog.findChildren<LocalConfig::CGroupBox*>())
        {
            Write(strState + '-' + pBox->objectName(), *pBox->parentWidget(), pBox->geometry());
        }
    }

private:
    QDir m_folder;
};

/// Every place that scrolling can bring the dialog to, so that each card is painted as the selected one.
void WriteScrolled(CPictures& pictures, QDialog& dialog)
{
    QScrollBar* pScrollBar = dialog.findChild<QScrollArea*>("scrollArea")->verticalScrollBar();
    for (int nPlace = 0; nPlace <= pScrollBar->maximum(); nPlace += 200)
    {
        pScrollBar->setValue(nPlace);
        pictures.Write(QString("scrolled-%1").arg(nPlace, 4, 10, QChar('0')), dialog);
    }
    pScrollBar->setValue(0);
}

void WriteLists(CPictures& pictures, QDialog& dialog)
{
    for (auto* pCombo : dialog.findChildren<QComboBox*>())
    {
        pCombo->showPopup();
        for (QWidget* pPopup : QApplication::topLevelWidgets())
        {
            if (pPopup->isVisible() && pPopup != &dialog)
            {
                pictures.Write("list-" + pCombo->objectName(), *pPopup);
                pPopup->hide();
            }
        }
        pCombo->hidePopup();
    }
}

void WritePicker(CPictures& pictures, QDialog& dialog)
{
    auto* pPage = dialog.findChild<QWidget*>("m_pVideo");
    dialog.findChild<QAbstractButton*>("btnShowSplitWnd")->click();
    pictures.Write("picker-open", *pPage);
    auto* pSplit = dialog.findChild<QAbstractButton*>("btnDiv9");
    pSplit->setFocus();
    pictures.Write("picker-focus", *pPage);
    pSplit->setDown(true);
    pictures.Write("picker-down", *pPage);
    pSplit->setDown(false);
    pSplit->setEnabled(false);
    pictures.Write("picker-disabled", *pPage);
    pSplit->setEnabled(true);
    pSplit->click();
    pictures.Write("picker-picked", *pPage);
    dialog.findChild<QAbstractButton*>("btnShowSplitWnd")->click();
    pictures.Write("picker-again", *pPage);
    dialog.findChild<QAbstractButton*>("btnShowSplitWnd")->click();
}

void WriteAll(CPictures& pictures, CHost& host)
{
    const std::unique_ptr<QDialog> pDialog = MakeProduct(host);
    pDialog->show();
    pictures.Write("first", *pDialog);
    QTest::qWait(g_nLayoutTime);
    pictures.Write("shown", *pDialog);
    pictures.WriteBoxes("filled", *pDialog);
    WriteScrolled(pictures, *pDialog);
    WriteLists(pictures, *pDialog);
    WritePicker(pictures, *pDialog);
    for (const char* pszTable : {"pcRadioBtn", "nkbRadioBtn", "pcRadioBtn"})
    {
        pDialog->findChild<QAbstractButton*>(pszTable)->click();
        pictures.Write(QString("keys-%1").arg(pszTable), *pDialog->findChild<QWidget*>("m_pKey"));
    }
    pDialog->findChild<QAbstractButton*>("btnOther")->click();
    pictures.WriteBoxes("defaults", *pDialog);
    pDialog->findChild<QAbstractButton*>("btnCancel")->click();
    pDialog->show();
    pictures.Write("again", *pDialog);
    pictures.WriteBoxes("again", *pDialog);
    host.fakes.loginManager.Notify(3, 0);
    pictures.WriteBoxes("disconnected", *pDialog);
    host.fakes.loginManager.Notify(2, 0);
    pictures.WriteBoxes("reconnected", *pDialog);
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "default.warning=false"); // what that platform cannot do
    QApplication application(argc, argv);
    if (argc != 3)
    {
        std::fputs("usage: bench-pictures FOLDER SKIN\n", stderr);
        return 2;
    }
    CPictures pictures(QDir().absoluteFilePath(QString::fromLocal8Bit(argv[1])));
    const QTemporaryDir folder;
    QDir::setCurrent(QDir::rootPath()); // the default folders are shown
    qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
    QApplication::setCursorFlashTime(0);
    Pxa::SetSkin(QString::fromLocal8Bit(argv[2]));
    QString strSheet;
    if (Pxa::loadStyleSheet(Pxa::GetSkinPath("public", "KvGui.qss"), strSheet))
    {
        application.setStyleSheet(strSheet);
    }
    CHost host(FilledSettings());
    WriteAll(pictures, host);
    return 0;
}
