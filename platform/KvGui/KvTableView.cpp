#include "KvTableView.h"

#include <QHeaderView>

namespace KVGUI
{

KvTableView::KvTableView(QWidget* pParent)
    : QTableView(pParent)
{}

void KvTableView::setModel(QAbstractItemModel* pModel)
{
    if (pModel == model())
    {
        return;
    }
    if (model())
    {
        // The view's own connections are its base's business.
        for (const QMetaObject::Connection& connection : m_listConnections)
        {
            disconnect(connection);
        }
        m_listConnections.clear();
    }
    QTableView::setModel(pModel);
    if (pModel)
    {
        m_listConnections = {
            connect(pModel, &QAbstractItemModel::headerDataChanged, this, &KvTableView::ApplyColumnWidths),
            connect(pModel, &QAbstractItemModel::columnsInserted, this, &KvTableView::ApplyColumnWidths),
            connect(pModel, &QAbstractItemModel::modelReset, this, &KvTableView::ApplyColumnWidths)};
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
