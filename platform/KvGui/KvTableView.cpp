#include "KvTableView.h"

#include <QHeaderView>

namespace KVGUI
{

KvTableView::KvTableView(QWidget* pParent)
    : QTableView(pParent)
{}

void KvTableView::setModel(QAbstractItemModel* pModel)
{
    if (model())
    {
        disconnect(model(), nullptr, this, nullptr);
    }
    QTableView::setModel(pModel);
    if (pModel)
    {
        connect(pModel, &QAbstractItemModel::headerDataChanged, this, &KvTableView::ApplyColumnWidths);
        connect(pModel, &QAbstractItemModel::columnsInserted, this, &KvTableView::ApplyColumnWidths);
        connect(pModel, &QAbstractItemModel::modelReset, this, &KvTableView::ApplyColumnWidths);
        ApplyColumnWidths();
    }
}

void KvTableView::ApplyColumnWidths()
{
    for (int nColumn = 0; nColumn < model()->columnCount(rootIndex()); ++nColumn)
    {
        const int nWidth = model()->headerData(nColumn, Qt::Horizontal, ColumnWidthRole).toInt();
        if (nWidth > 0)
        {
            setColumnWidth(nColumn, nWidth);
        }
    }
}

} // namespace KVGUI
