#include "support/DialogFixture.h"

#include <KvGui/KvHorScrollBar.h>
#include <KvGui/KvVerScrollBar.h>
#include <UICommonModule/Pxa.h>

#include <QAbstractItemView>
#include <QDir>
#include <QLayout>
#include <QTemporaryDir>

using namespace LocalConfig;

class tst_DialogForm : public QObject
{
    Q_OBJECT

private slots:
    void init() { ResetFakePages(); }

    void FormTree();
    void GroupBoxes_data();
    void GroupBoxes();
    void GroupBoxTitlesAreEmptyBeforeInit();
    void NavigationEntries();
    void NavigationIconsComeFromTheirFolders_data();
    void NavigationIconsComeFromTheirFolders();
    void ButtonTexts();
    void ScrollBarsAreTheClients();
    void WithoutTheWallRight();
    void StyleSheetsComeFromTheSkin();
};

void tst_DialogForm::FormTree()
{
    DIALOG;
    QWidget* pCentral = d.dialog.GetCentralWidget();
    QCOMPARE(pCentral->objectName(), QString("CLocalConfig"));
    QCOMPARE(d.dialog.objectName(), QString("CLocalConfig"));
    QCOMPARE(pCentral->minimumSize(), QSize(943, 607));
    QCOMPARE(pCentral->maximumSize(), QSize(943, 607));

    const auto layout = [&d](const char* pszName) { return d.dialog.findChild<QBoxLayout*>(pszName); };
    const auto check = [&](const char* pszName, QBoxLayout::Direction eDirection, int nSpacing, QMargins margins) {
        QBoxLayout* pLayout = layout(pszName);
        QVERIFY2(pLayout, pszName);
        QCOMPARE(pLayout->direction(), eDirection);
        QCOMPARE(pLayout->spacing(), nSpacing);
        QCOMPARE(pLayout->contentsMargins(), margins);
    };
    check("verticalLayout_2", QBoxLayout::TopToBottom, 0, QMargins(1, 0, 1, 1));
    check("horizontalLayout", QBoxLayout::LeftToRight, 0, QMargins(0, 0, 0, 1));
    check("verticalLayout_3", QBoxLayout::TopToBottom, 0, QMargins(12, 12, 12, 12));
    check("verticalLayout", QBoxLayout::TopToBottom, 19, QMargins(12, 12, 0, 12));
    QCOMPARE(pCentral->layout(), layout("verticalLayout_2"));

    auto* pCenter = d.dialog.findChild<QWidget*>("centerWidget");
    QCOMPARE(pCenter->parentWidget(), pCentral);
    QCOMPARE(pCenter->layout(), layout("horizontalLayout"));
    auto* pPane = d.dialog.findChild<QWidget*>("widget");
    QCOMPARE(layout("horizontalLayout")->indexOf(pPane), 0);
    QCOMPARE(layout("horizontalLayout")->indexOf(d.ScrollArea()), 1);
    QCOMPARE(pPane->parentWidget(), pCenter);
    QCOMPARE(pPane->minimumSize(), QSize(254, 0));
    QCOMPARE(pPane->maximumSize(), QSize(254, QWIDGETSIZE_MAX));
    QCOMPARE(pPane->layout(), layout("verticalLayout_3"));

    QCOMPARE(d.List()->parentWidget(), pPane);
    QCOMPARE(d.List()->frameShape(), QFrame::StyledPanel);
    QCOMPARE(d.List()->frameShadow(), QFrame::Raised);

    QScrollArea* pArea = d.ScrollArea();
    QCOMPARE(pArea->parentWidget(), pCenter);
    QCOMPARE(pArea->frameShape(), QFrame::NoFrame);
    QCOMPARE(pArea->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QVERIFY(pArea->widgetResizable());
    QCOMPARE(pArea->widget(), d.Contents());
    QCOMPARE(d.Contents()->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(d.Contents()->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(d.Contents()->layout(), layout("verticalLayout"));
    QCOMPARE(layout("verticalLayout")->count(), 9);
}

void tst_DialogForm::GroupBoxes_data()
{
    BoxRows();
}

void tst_DialogForm::GroupBoxes()
{
    QFETCH(int, nIndex);
    const SBox& expected = g_arrBoxes[nIndex];
    DIALOG;
    d.Init();
    CGroupBox* pBox = d.Box(nIndex);
    QVERIFY(pBox);
    QCOMPARE(d.Contents()->layout()->indexOf(pBox), nIndex);
    QCOMPARE(pBox->minimumSize(), QSize(662, expected.nMinimumHeight));
    QCOMPARE(pBox->maximumSize(), QSize(662, QWIDGETSIZE_MAX));
    QCOMPARE(pBox->GetIndex(), nIndex);
    QCOMPARE(pBox->title(), QString(expected.pszText));
    auto* pLayout = qobject_cast<QHBoxLayout*>(pBox->layout());
    QVERIFY(pLayout);
    QCOMPARE(pLayout->objectName(), QString(expected.pszLayout));
    QCOMPARE(pLayout->spacing(), 0);
    QCOMPARE(pLayout->contentsMargins(), QMargins());
}

void tst_DialogForm::GroupBoxTitlesAreEmptyBeforeInit()
{
    DIALOG;
    for (const SBox& box : g_arrBoxes)
    {
        QVERIFY(d.Box(box.nIndex)->title().isEmpty());
        QCOMPARE(d.Box(box.nIndex)->GetIndex(), -1);
    }
}

void tst_DialogForm::NavigationEntries()
{
    DIALOG;
    d.InitAndShow();
    const auto* pView = qobject_cast<QAbstractItemView*>(d.List());
    QCOMPARE(pView->model()->rowCount(), 9);
    for (const SBox& box : g_arrBoxes)
    {
        QCOMPARE(pView->model()->index(box.nIndex, 0).data().toString(), QString(box.pszText));
    }
    d.List()->setFocus();
    QTest::keyClick(d.List(), Qt::Key_Home);
    for (int n = 1; n < 9; ++n)
    {
        QTest::keyClick(d.List(), Qt::Key_Down);
        QCOMPARE(d.List()->GetCurrentIndex(), n);
    }
    QTest::keyClick(d.List(), Qt::Key_Down);
    QCOMPARE(d.List()->GetCurrentIndex(), 8);
}

void tst_DialogForm::NavigationIconsComeFromTheirFolders_data()
{
    QTest::addColumn<int>("nIndex");
    QTest::addColumn<int>("nMode");
    QTest::addColumn<QString>("strFolder");
    QTest::addColumn<QString>("strFile");
    struct SIcon
    {
        const char* pszName;
        const char* arrFolders[3];
    };
    constexpr const char* P = "public";
    constexpr const char* L = "LocalConfig";
    const SIcon arrIcons[] = {{"general", {P, P, P}},   {"video", {L, L, L}},          {"playback", {P, P, L}},
                              {"capture", {P, L, L}},   {"videorecord", {P, P, P}},    {"alert", {L, L, L}},
                              {"settvwall", {L, L, L}}, {"SecurityConfig", {L, L, L}}, {"shortcut", {L, L, L}}};
    const char* const arrSuffixes[] = {"-n.svg", "-h.svg", "-p.svg"};
    const QIcon::Mode arrModes[] = {QIcon::Normal, QIcon::Active, QIcon::Selected};
    for (int nIndex = 0; nIndex < 9; ++nIndex)
    {
        for (int n = 0; n < 3; ++n)
        {
            const QString strFile = QString(arrIcons[nIndex].pszName) + arrSuffixes[n];
            QTest::newRow(qPrintable(strFile))
                << nIndex << int(arrModes[n]) << arrIcons[nIndex].arrFolders[n] << strFile;
        }
    }
}

void tst_DialogForm::NavigationIconsComeFromTheirFolders()
{
    // A resource folder with one file in it: the icon of one mode of one entry is not empty, all others are.
    QFETCH(int, nIndex);
    QFETCH(int, nMode);
    QFETCH(QString, strFolder);
    QFETCH(QString, strFile);

    const QByteArray strResources = qgetenv("KV_CLIENT_RESOURCES");
    QTemporaryDir folder;
    qputenv("KV_CLIENT_RESOURCES", folder.path().toLocal8Bit());
    const QString strPath = Pxa::GetSkinPath(strFolder, QString());
    QVERIFY(strPath.startsWith(folder.path()));
    QVERIFY(QDir().mkpath(strPath));
    QFile file(strPath + strFile);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 20 20'><rect width='20' height='20'/></svg>");
    file.close();

    DIALOG;
    d.Init();
    qputenv("KV_CLIENT_RESOURCES", strResources);
    auto* pView = qobject_cast<QAbstractItemView*>(d.List());
    if (!pView)
    {
        pView = d.List()->findChild<QAbstractItemView*>();
    }
    QVERIFY(pView);
    QCOMPARE(pView->model()->rowCount(), 9);
    for (int nRow = 0; nRow < 9; ++nRow)
    {
        const QIcon icon = pView->model()->index(nRow, 0).data(Qt::DecorationRole).value<QIcon>();
        for (int nOther : {int(QIcon::Normal), int(QIcon::Active), int(QIcon::Selected)})
        {
            const QPixmap pixmap = icon.pixmap(QSize(20, 20), QIcon::Mode(nOther), QIcon::Off);
            QCOMPARE(!pixmap.isNull(), nRow == nIndex && nOther == nMode);
        }
    }
}

void tst_DialogForm::ButtonTexts()
{
    DIALOG;
    d.Init();
    QCOMPARE(d.Button("btnOk")->text(), QString("Save"));
    QCOMPARE(d.Button("btnOther")->text(), QString("Default"));
    QCOMPARE(d.Button("btnCancel")->text(), QString("Cancel"));
    QCOMPARE(d.dialog.windowTitle(), QString("Local Config"));
}

void tst_DialogForm::ScrollBarsAreTheClients()
{
    DIALOG;
    d.Init();
    QVERIFY(qobject_cast<KVGUI::KvHorScrollBar*>(d.ScrollArea()->horizontalScrollBar()));
    QVERIFY(qobject_cast<KVGUI::KvVerScrollBar*>(d.ScrollArea()->verticalScrollBar()));
    QCOMPARE(d.ScrollArea()->horizontalScrollBar()->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(d.ScrollArea()->verticalScrollBar()->contextMenuPolicy(), Qt::NoContextMenu);
}

void tst_DialogForm::WithoutTheWallRight()
{
    DIALOG;
    host.userRight.m_setMissing = {26};
    d.InitAndShow();
    QVERIFY(!d.Box(6)->isVisible());
    QVERIFY(d.Box(6)->title().isEmpty());
    QCOMPARE(d.Box(6)->GetIndex(), 6);
    QVERIFY(!SFakePages::Instance().mapPages.contains(6));
    QCOMPARE(SFakePages::Instance().mapPages.size(), 8);
    QCOMPARE(qobject_cast<QAbstractItemView*>(d.List())->model()->rowCount(), 8);

    d.List()->setFocus();
    QTest::keyClick(d.List(), Qt::Key_Home);
    QList<int> listIndices = {d.List()->GetCurrentIndex()};
    for (int n = 1; n < 8; ++n)
    {
        QTest::keyClick(d.List(), Qt::Key_Down);
        listIndices += d.List()->GetCurrentIndex();
    }
    QCOMPARE(listIndices, (QList<int>{0, 1, 2, 3, 4, 5, 7, 8}));
}

void tst_DialogForm::StyleSheetsComeFromTheSkin()
{
    const QByteArray strResources = qgetenv("KV_CLIENT_RESOURCES");
    QTemporaryDir folder;
    qputenv("KV_CLIENT_RESOURCES", folder.path().toLocal8Bit());
    {
        DIALOG;
        QVERIFY2(d.dialog.styleSheet().isEmpty() && d.Box(0)->styleSheet().isEmpty(), "no file, no sheet");
    }
    const QString strPath = Pxa::GetSkinPath("LocalConfig", QString());
    QVERIFY(QDir().mkpath(strPath));
    for (const char* pszName : {"CLocalConfig", "CGroupBox"})
    {
        QFile file(strPath + pszName + ".qss");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("QLabel { color: red } /*") + pszName + "*/");
    }
    DIALOG;
    qputenv("KV_CLIENT_RESOURCES", strResources);
    QCOMPARE(d.dialog.styleSheet(), QString("QLabel { color: red } /*CLocalConfig*/"));
    for (const SBox& box : g_arrBoxes)
    {
        QCOMPARE(d.Box(box.nIndex)->styleSheet(), QString("QLabel { color: red } /*CGroupBox*/"));
    }
}

QTEST_MAIN(tst_DialogForm)

#include "tst_DialogForm.moc"
