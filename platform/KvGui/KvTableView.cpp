#include "KvTableView.h"

#include <QHeaderView>
#include <QKeyEvent>

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
            connect(pModel, &QAbstractItemModel::headerDataChanged, this, &KvTableView::OnHeaderDataChanged),
            connect(pModel, &QAbstractItemModel::columnsInserted, this, &KvTableView::OnColumnsInserted),
            connect(pModel, &QAbstractItemModel::modelReset, this, &KvTableView::OnModelReset)};
        OnModelReset();
    }
}

void KvTableView::keyPressEvent(QKeyEvent* pEvent)
{
    QTableView::keyPressEvent(pEvent);
    if (pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter)
    {
        pEvent->accept(); // Enter on a cell must not press the dialog's default button
    }
}

void KvTableView::OnHeaderDataChanged(Qt::Orientation eOrientation, int nFirst, int nLast)
{
    if (eOrientation == Qt::Horizontal)
    {
        ApplyColumnWidths(nFirst, nLast);
    }
}

void KvTableView::OnColumnsInserted(const QModelIndex& parent, int nFirst, int nLast)
{
    if (parent == rootIndex())
    {
        ApplyColumnWidths(nFirst, nLast);
    }
}

void KvTableView::OnModelReset()
{
    ApplyColumnWidths(0, model()->columnCount(rootIndex()) - 1);
}

void KvTableView::ApplyColumnWidths(int nFirst, int nLast)
{
    for (int nColumn = nFirst; nColumn <= nLast; ++nColumn)
    {
        const int nWidth = model()->headerData(nColumn, Qt::Horizontal, ColumnWidthRole).toInt();
        if (nWidth > 0)
        {
            setColumnWidth(nColumn, nWidth);
        }
    }
}

} // namespace KVGUI
