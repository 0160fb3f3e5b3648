#pragma once

#include <KvGui/KvGuiExport.h>

#include <QTableView>

namespace KVGUI
{

/// Table with the client's look. The model names the width of a column, in pixels, under the header role
/// ColumnWidthRole; columns without one keep their default width. A width that the user has given stays until the
/// model changes that column's header.
class KVGUI_EXPORT KvTableView : public QTableView
{
    Q_OBJECT

public:
    static constexpr int ColumnWidthRole = Qt::UserRole + 110; ///< 366, of the header data

    explicit KvTableView(QWidget* pParent = nullptr); ///< without a model

    void setModel(QAbstractItemModel* pModel) override; ///< takes the widths over

protected:
    void keyPressEvent(QKeyEvent* pEvent) override;

private:
    void OnHeaderDataChanged(Qt::Orientation eOrientation, int nFirst, int nLast);
    void OnColumnsInserted(const QModelIndex& parent, int nFirst, int nLast);
    void OnModelReset();
    void ApplyColumnWidths(int nFirst, int nLast);

    QList<QMetaObject::Connection> m_listConnections; // to the model
};

} // namespace KVGUI
