#include "CFileDialog.h"

#include <QHeaderView>
#include <QListView>
#include <QSplitter>
#include <QTreeView>

namespace UICommonMdl
{

namespace
{

constexpr QSize g_size(760, 480);
constexpr int g_nMaxPlaces = 240; // pixels for the places aside, however long their names

void WidenNames(QHeaderView& header)
{
    header.setStretchLastSection(false);
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(0, QHeaderView::Stretch);
}

void WidenPlaces(QSplitter& splitter, const QListView& places)
{
    const int nFrame = 2 * places.frameWidth();
    const int nWidth = qBound(places.minimumSizeHint().width(), places.sizeHintForColumn(0) + nFrame, g_nMaxPlaces);
    splitter.setSizes({nWidth, splitter.width() - splitter.handleWidth() - nWidth});
}

} // namespace

CFileDialog::CFileDialog(QWidget* pParent, const QString& strTitle, const QString& strFolder, const QString& strFilter)
    : QFileDialog(pParent, strTitle, strFolder, strFilter)
{}

void CFileDialog::showEvent(QShowEvent* pEvent)
{
    QFileDialog::showEvent(pEvent);
    const auto* pFiles = findChild<QTreeView*>(QStringLiteral("treeView"));
    const auto* pPlaces = findChild<QListView*>(QStringLiteral("sidebar"));
    auto* pSplitter = findChild<QSplitter*>(QStringLiteral("splitter"));
    if (pFiles && pPlaces && pSplitter) // Qt's own dialog, not the platform's
    {
        resize(size().expandedTo(g_size));
        WidenPlaces(*pSplitter, *pPlaces);
        WidenNames(*pFiles->header());
    }
}

} // namespace UICommonMdl
