#include "support/Skin.h"

#include <UICommonModule/CFileDialog.h>

#include <QFile>
#include <QHeaderView>
#include <QListView>
#include <QTemporaryDir>
#include <QTreeView>
#include <QtTest>

using UICommonMdl::CFileDialog;

namespace
{

/// A dialog on a folder with one file in it.
struct SDialog
{
    SDialog()
        : dialog(nullptr, "Select", folder.path(), "WAVE Files (*.wav)")
    {
        QFile file(folder.filePath(g_pszFile));
        if (file.open(QIODevice::WriteOnly))
        {
            file.resize(123456);
        }
        dialog.show();
        pFiles = dialog.findChild<QTreeView*>("treeView");
    }

    static constexpr const char* g_pszFile = "perimeter alarm of the north gate.wav";

    QTemporaryDir folder;
    CFileDialog dialog;
    QTreeView* pFiles = nullptr;
};

} // namespace

class tst_FileDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { UseSkin("DustyBlue"); }

    void EveryPartHasTheColoursOfTheSkin();
    void EveryColumnCanBeRead();
    void EveryPlaceAsideCanBeRead();
    void ColumnsCanBeReadAfterAnotherSize();
};

void tst_FileDialog::EveryPartHasTheColoursOfTheSkin()
{
    SDialog d;
    QFile file(Pxa::GetSkinPath("public", "palette.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString strColors = QString::fromLatin1(file.readAll());
    for (const QWidget* pWidget : d.dialog.findChildren<QWidget*>())
    {
        const QColor ground = pWidget->palette().color(QPalette::Window);
        QVERIFY2(strColors.contains(ground.name()) || ground.alpha() == 0,
                 qPrintable(QString("%1: %2").arg(pWidget->metaObject()->className(), ground.name())));
    }
}

void tst_FileDialog::EveryColumnCanBeRead()
{
    SDialog d;
    QTRY_VERIFY(d.pFiles->model()->rowCount(d.pFiles->rootIndex()) == 1);
    QTRY_VERIFY(d.pFiles->isVisible());
    QCoreApplication::processEvents();
    int nWidth = 0;
    for (int nColumn = 0; nColumn < d.pFiles->header()->count(); ++nColumn)
    {
        const QModelIndex index = d.pFiles->model()->index(0, nColumn, d.pFiles->rootIndex());
        const int nNeeded = d.pFiles->fontMetrics().horizontalAdvance(index.data().toString());
        QVERIFY2(d.pFiles->columnWidth(nColumn) > nNeeded, qPrintable(index.data().toString()));
        nWidth += d.pFiles->columnWidth(nColumn);
    }
    QVERIFY(nWidth <= d.pFiles->viewport()->width());
}

void tst_FileDialog::EveryPlaceAsideCanBeRead()
{
    SDialog d;
    const auto* pPlaces = d.dialog.findChild<QListView*>("sidebar");
    QVERIFY(pPlaces->model()->rowCount() > 0);
    for (int nRow = 0; nRow < pPlaces->model()->rowCount(); ++nRow)
    {
        const QModelIndex index = pPlaces->model()->index(nRow, 0);
        QVERIFY2(pPlaces->sizeHintForIndex(index).width() <= pPlaces->viewport()->width(),
                 qPrintable(index.data().toString()));
    }
}

void tst_FileDialog::ColumnsCanBeReadAfterAnotherSize()
{
    SDialog d;
    QTRY_VERIFY(d.pFiles->model()->rowCount(d.pFiles->rootIndex()) == 1);
    d.dialog.resize(d.dialog.width() + 200, d.dialog.height());
    QCoreApplication::processEvents();
    int nWidth = 0;
    for (int nColumn = 0; nColumn < d.pFiles->header()->count(); ++nColumn)
    {
        nWidth += d.pFiles->columnWidth(nColumn);
    }
    QCOMPARE(nWidth, d.pFiles->viewport()->width()); // the names take what there is
}

QTEST_MAIN(tst_FileDialog)

#include "tst_FileDialog.moc"
