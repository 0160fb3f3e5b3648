// Fields and the lists that open from them, as both skins draw them.

#include "support/Skin.h"
#include "support/SkinColors.h"

#include <KvGui/KvCheckBox.h>
#include <KvGui/KvComboBox.h>
#include <KvGui/KvLineEdit.h>
#include <KvGui/KvPushButton.h>
#include <KvGui/KvRadioButton.h>
#include <KvGui/KvSpinBox.h>
#include <KvGui/KvTableView.h>
#include <LocalConfig/widgets/QCheckableComboBox.h>
#include <UICommonModule/CAlarmTypeCombox.h>
#include <UICommonModule/CPathEdit.h>

#include <QApplication>
#include <QCompleter>
#include <QListView>
#include <QListWidget>
#include <QMenu>
#include <QProxyStyle>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

namespace
{

constexpr int g_nRowHeight = 28;
const char* const g_pszText = u8"\u2588"; // a full block, whose edge no smoothing blurs

/// The first column with ink in it, from a column on; at half height, so that no border counts.
int FindInk(const QImage& image, int nFrom)
{
    const QRect band(nFrom, image.height() / 2 - 3, image.width() - nFrom, 6);
    const QColor ground = image.pixelColor(nFrom, band.top());
    for (int nX = band.left(); nX <= band.right(); ++nX)
    {
        for (int nY = band.top(); nY <= band.bottom(); ++nY)
        {
            if (Contrast(image.pixelColor(nX, nY), ground) > 2)
            {
                return nX;
            }
        }
    }
    return -1;
}

/// Where the text of a field begins on the screen.
int FieldText(QWidget* pField)
{
    const int nClearOfBorder = 4;
    return pField->mapToGlobal({FindInk(pField->grab().toImage(), nClearOfBorder), 0}).x();
}

QImage DrawRow(const QAbstractItemView* pView, const QModelIndex& index)
{
    return pView->viewport()->grab(pView->visualRect(index)).toImage();
}

/// Where the text of a row begins on the screen.
int RowText(const QAbstractItemView* pView, const QModelIndex& index)
{
    const QRect row = pView->visualRect(index);
    const int nClearOfBorder = 2;
    return pView->viewport()->mapToGlobal({row.left() + FindInk(DrawRow(pView, index), nClearOfBorder), 0}).x();
}

/// The ground of a row, or the line around it where that stands out more.
QColor RowMark(const QAbstractItemView* pView, const QModelIndex& index, const QColor& around)
{
    const QImage image = DrawRow(pView, index);
    const QColor ground = image.pixelColor(image.width() - 4, image.height() / 2);
    const QColor line = image.pixelColor(image.width() / 2, 0);
    return Contrast(ground, around) > Contrast(line, around) ? ground : line;
}

/// An active window with one control in it.
template <class Control>
struct SWindow
{
    SWindow()
        : pControl(new Control(&window))
    {
        auto* pLayout = new QVBoxLayout(&window);
        pLayout->addWidget(pControl);
        pLayout->addWidget(&other);
        other.setParent(&window);
    }

    void Open()
    {
        window.resize(400, 200);
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        other.setFocus();
    }

    QWidget window;
    Control* pControl;
    KVGUI::KvPushButton other;
};

/// A box with four entries, the third of them current.
struct SCombo : SWindow<KVGUI::KvComboBox>
{
    void Open()
    {
        pControl->addItems({g_pszText, g_pszText, g_pszText, g_pszText});
        pControl->setCurrentIndex(2);
        SWindow::Open();
        pControl->showPopup();
        QVERIFY(QTest::qWaitForWindowExposed(pControl->view()->window()));
    }

    QModelIndex Row(int nRow) const { return pControl->model()->index(nRow, 0); }
};

/// The box of alarm types with its menu, in which the types have the keys.
struct SAlarmMenu : SWindow<UICommonMdl::CAlarmTypeCombox>
{
    void Open()
    {
        pControl->InitMenu({{1, g_pszText}, {2, "Device"}},
                           {{1, {{0, g_pszText}, {1, "Offline"}}}, {2, {{2, "Lost"}}}});
        pControl->ChooseItem(1, 0);
        SWindow::Open();
        pControl->showPopup();
        for (const char* pszList : {"mainItems", "subItems"})
        {
            listLists += pControl->findChild<QListView*>(pszList);
        }
    }

    QList<QListView*> listLists;
};

/// Notes whether a frame of the platform's own is drawn around what has the focus.
class CFrameSpy : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement eElement, const QStyleOption* pOption, QPainter* pPainter,
                       const QWidget* pWidget) const override
    {
        s_nFrames += eElement == PE_FrameFocusRect;
        QProxyStyle::drawPrimitive(eElement, pOption, pPainter, pWidget);
    }

    static inline int s_nFrames = 0;
};

void FillTable(QAbstractItemView* pView)
{
    auto* pModel = new QStandardItemModel(2, 2, pView);
    pModel->setItem(0, 0, new QStandardItem(g_pszText));
    pView->setModel(pModel);
    pView->setCurrentIndex(pModel->index(0, 0));
}

template <class Control>
QWidget* Make()
{
    auto* pControl = new Control;
    if (auto* pView = qobject_cast<QAbstractItemView*>(pControl))
    {
        FillTable(pView);
    }
    if (auto* pButton = qobject_cast<QAbstractButton*>(pControl))
    {
        pButton->setText("Text");
    }
    return pControl;
}

using Maker = QWidget* (*)();

} // namespace

Q_DECLARE_METATYPE(Maker)

class tst_SkinFields : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { qApp->setStyleSheet(QString()); }

    void FieldsHaveTheSameInset_data() { SkinRows(); }
    void FieldsHaveTheSameInset();
    void RowsOfAListAreHighEnough_data() { SkinRows(); }
    void RowsOfAListAreHighEnough();
    void RowsOfAListStandBelowTheText_data() { SkinRows(); }
    void RowsOfAListStandBelowTheText();
    void TheCurrentRowOfAListStandsOut_data() { SkinRows(); }
    void TheCurrentRowOfAListStandsOut();
    void RowsOfTheAlarmMenuAreHighEnough_data() { SkinRows(); }
    void RowsOfTheAlarmMenuAreHighEnough();
    void RowsOfTheAlarmMenuStandBelowTheText_data() { SkinRows(); }
    void RowsOfTheAlarmMenuStandBelowTheText();
    void TheCurrentRowsOfTheAlarmMenuStandOut_data() { SkinRows(); }
    void TheCurrentRowsOfTheAlarmMenuStandOut();
    void TheAlarmMenuShowsWhichListHasTheKeys_data() { SkinRows(); }
    void TheAlarmMenuShowsWhichListHasTheKeys();
    void RowsOfCheckBoxesAreHighEnough_data() { SkinRows(); }
    void RowsOfCheckBoxesAreHighEnough();
    void RowsOfTheFoldersOfAPathLookLikeThoseOfAList_data() { SkinRows(); }
    void RowsOfTheFoldersOfAPathLookLikeThoseOfAList();
    void TheCurrentEntryOfAMenuStandsOut_data() { SkinRows(); }
    void TheCurrentEntryOfAMenuStandsOut();
    void NoFrameOfThePlatformsIsDrawn_data();
    void NoFrameOfThePlatformsIsDrawn();
};

void tst_SkinFields::FieldsHaveTheSameInset()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    SWindow<KVGUI::KvLineEdit> edit;
    edit.pControl->setText(g_pszText);
    SWindow<UICommonMdl::CPathEdit> path;
    path.pControl->setText(g_pszText);
    SWindow<KVGUI::KvSpinBox> spinBox;
    spinBox.pControl->setPrefix(g_pszText);
    SWindow<KVGUI::KvComboBox> combo;
    combo.pControl->addItem(g_pszText);
    SWindow<UICommonMdl::CAlarmTypeCombox> alarm;
    alarm.pControl->addItem(g_pszText);
    SWindow<LocalConfig::QCheckableComboBox> checkable;
    checkable.pControl->setItemText(0, g_pszText);

    QMap<QString, int> mapInsets;
    const auto measure = [&mapInsets](auto& window) {
        window.Open();
        QWidget* pControl = window.pControl;
        mapInsets.insert(pControl->metaObject()->className(), FieldText(pControl) - pControl->mapToGlobal({}).x());
    };
    measure(edit);
    measure(path);
    measure(spinBox);
    measure(combo);
    measure(alarm);
    measure(checkable);
    for (auto it = mapInsets.cbegin(); it != mapInsets.cend(); ++it)
    {
        QVERIFY2(it.value() == mapInsets.first(), qPrintable(QString("%1: %2, %3: %4")
                                                                 .arg(mapInsets.firstKey())
                                                                 .arg(mapInsets.first())
                                                                 .arg(it.key())
                                                                 .arg(it.value())));
    }
}

void tst_SkinFields::RowsOfAListAreHighEnough()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    SCombo combo;
    combo.Open();
    for (int n = 0; n < 4; ++n)
    {
        QCOMPARE(combo.pControl->view()->visualRect(combo.Row(n)).height(), g_nRowHeight);
    }
}

void tst_SkinFields::RowsOfAListStandBelowTheText()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    SCombo combo;
    combo.Open();
    for (int n : {1, 2}) // 2: the current one
    {
        QCOMPARE(RowText(combo.pControl->view(), combo.Row(n)), FieldText(combo.pControl));
    }
}

void tst_SkinFields::TheCurrentRowOfAListStandsOut()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    SCombo combo;
    combo.Open();
    const QColor field = PaletteColor(strSkin, "field");
    QCOMPARE(RowMark(combo.pControl->view(), combo.Row(1), field), field);
    QVERIFY(Contrast(RowMark(combo.pControl->view(), combo.Row(2), field), field) >= 3);
}

void tst_SkinFields::RowsOfTheAlarmMenuAreHighEnough()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    SAlarmMenu menu;
    menu.Open();
    for (const QListView* pList : menu.listLists)
    {
        QCOMPARE(pList->visualRect(pList->model()->index(0, 0)).height(), g_nRowHeight);
        QCOMPARE(pList->visualRect(pList->model()->index(1, 0)).height(), g_nRowHeight);
    }
}

void tst_SkinFields::RowsOfTheAlarmMenuStandBelowTheText()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    SAlarmMenu menu;
    menu.Open();
    const QListView* pMain = menu.listLists[0];
    const QListView* pSub = menu.listLists[1];
    QCOMPARE(RowText(pMain, pMain->model()->index(0, 0)), FieldText(menu.pControl));
    const auto inset = [](const QListView* pList) {
        return RowText(pList, pList->model()->index(0, 0)) - pList->viewport()->mapToGlobal({}).x();
    };
    QCOMPARE(inset(pSub), inset(pMain));
}

void tst_SkinFields::TheCurrentRowsOfTheAlarmMenuStandOut()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    SAlarmMenu menu;
    menu.Open();
    const QColor field = PaletteColor(strSkin, "field");
    for (const QListView* pList : menu.listLists)
    {
        QCOMPARE(RowMark(pList, pList->model()->index(1, 0), field), field);
        QVERIFY(Contrast(RowMark(pList, pList->currentIndex(), field), field) >= 3);
    }
}

void tst_SkinFields::TheAlarmMenuShowsWhichListHasTheKeys()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    SAlarmMenu menu;
    menu.Open();
    const QColor accent = PaletteColor(strSkin, "accent");
    const auto isFilled = [&accent](const QListView* pList) {
        const QImage image = DrawRow(pList, pList->currentIndex());
        return image.pixelColor(image.width() - 4, image.height() / 2) == accent;
    };
    for (int nKey : {Qt::Key_Left, Qt::Key_Right})
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(nKey));
        QCOMPARE(isFilled(menu.listLists[0]), nKey == Qt::Key_Left);
        QCOMPARE(isFilled(menu.listLists[1]), nKey == Qt::Key_Right);
    }
}

void tst_SkinFields::RowsOfCheckBoxesAreHighEnough()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    SWindow<LocalConfig::QCheckableComboBox> box;
    box.pControl->SetItems({{1, "One"}, {2, "Two"}});
    box.Open();
    box.pControl->showPopup();
    const QAbstractItemView* pList = box.pControl->view();
    QCOMPARE(pList->visualRect(pList->model()->index(0, 0)).height(), g_nRowHeight);
    QCOMPARE(pList->visualRect(pList->model()->index(1, 0)).height(), g_nRowHeight);
}

void tst_SkinFields::RowsOfTheFoldersOfAPathLookLikeThoseOfAList()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    QTemporaryDir folder;
    for (const char* pszName : {"One", "Two"})
    {
        QVERIFY(QDir(folder.path()).mkdir(pszName));
    }
    SWindow<UICommonMdl::CPathEdit> path;
    path.Open();
    path.pControl->setFocus();
    path.pControl->setText(folder.path());
    QTest::keyClick(path.pControl, Qt::Key_Slash);
    const QAbstractItemView* pList = path.pControl->completer()->popup();
    QTRY_VERIFY(pList->isVisible() && pList->model()->rowCount() == 2);
    const QModelIndex first = pList->model()->index(0, 0);
    QCOMPARE(pList->visualRect(first).height(), g_nRowHeight);
    const QColor field = PaletteColor(strSkin, "field");
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
    QCOMPARE(pList->currentIndex(), first);
    QVERIFY(Contrast(RowMark(pList, first, field), field) >= 3);
}

void tst_SkinFields::TheCurrentEntryOfAMenuStandsOut()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    QMenu menu;
    menu.addAction("One");
    QAction* pCurrent = menu.addAction("Two");
    menu.popup({});
    menu.setActiveAction(pCurrent);
    const QImage image = menu.grab().toImage();
    const QColor current =
        image.pixelColor(menu.actionGeometry(pCurrent).center().x(), menu.actionGeometry(pCurrent).top() + 2);
    QVERIFY(Contrast(current, PaletteColor(strSkin, "card")) >= 3);
    QCOMPARE(current, PaletteColor(strSkin, "accent")); // which the contrast of the text is known on
}

void tst_SkinFields::NoFrameOfThePlatformsIsDrawn_data()
{
    QTest::addColumn<QString>("strSkin");
    QTest::addColumn<Maker>("make");
    struct SKind
    {
        const char* pszName;
        Maker make;
    };
    const SKind arrKinds[] = {{"push button", &Make<QPushButton>},
                              {"KvPushButton", &Make<KVGUI::KvPushButton>},
                              {"KvCheckBox", &Make<KVGUI::KvCheckBox>},
                              {"KvRadioButton", &Make<KVGUI::KvRadioButton>},
                              {"KvComboBox", &Make<KVGUI::KvComboBox>},
                              {"KvTableView", &Make<KVGUI::KvTableView>},
                              {"list", &Make<QListView>},
                              {"tree", &Make<QTreeView>},
                              {"tool button", &Make<QToolButton>}};
    for (const char* pszSkin : g_arrSkins)
    {
        for (const SKind& kind : arrKinds)
        {
            QTest::addRow("%s: %s", pszSkin, kind.pszName) << pszSkin << kind.make;
        }
    }
}

void tst_SkinFields::NoFrameOfThePlatformsIsDrawn()
{
    QFETCH(QString, strSkin);
    QFETCH(Maker, make);
    UseSkin(strSkin);
    SWindow<QWidget> window;
    QWidget* pControl = make();
    pControl->setFocusPolicy(Qt::StrongFocus);
    window.window.layout()->addWidget(pControl);
    window.Open();
    pControl->setFocus(Qt::TabFocusReason);
    QVERIFY(pControl->hasFocus());
    CFrameSpy::s_nFrames = 0;
    pControl->grab();
    QCOMPARE(CFrameSpy::s_nFrames, 0);
}

int main(int nArguments, char** ppszArguments)
{
    QApplication::setStyle(new CFrameSpy("Fusion"));
    QApplication application(nArguments, ppszArguments);
    tst_SkinFields test;
    return QTest::qExec(&test, nArguments, ppszArguments);
}

#include "tst_SkinFields.moc"
