#include "Contents.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDataStream>
#include <QGroupBox>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTableView>

namespace
{

constexpr int g_nTableColumns = 4;

/// Calls visit(control) for each of the controls that has a name of its own.
template <class Control, class Visitor>
void VisitNamed(const QWidget& dialog, Visitor visit)
{
    for (auto* pControl : dialog.findChildren<Control*>())
    {
        if (!pControl->objectName().isEmpty() && !pControl->objectName().startsWith("qt_"))
        {
            visit(*pControl);
        }
    }
}

} // namespace

CContents::CContents(const QWidget& dialog)
{
    VisitNamed<QComboBox>(dialog, [this](const QComboBox& combo) {
        Combo contents{{}, combo.currentIndex()};
        for (int n = 0; n < combo.count(); ++n)
        {
            contents.first += combo.itemText(n);
        }
        m_mapCombos[combo.objectName()] = contents;
    });
    VisitNamed<QLineEdit>(dialog, [this](const QLineEdit& edit) { m_mapTexts[edit.objectName()] = edit.text(); });
    VisitNamed<QGroupBox>(dialog, [this](const QGroupBox& box) { m_mapTitles[box.objectName()] = box.title(); });
    VisitNamed<QAbstractButton>(
        dialog, [this](const QAbstractButton& button) { m_mapChecked[button.objectName()] = button.isChecked(); });
    VisitNamed<QTableView>(dialog, [this](const QTableView& table) {
        if (table.isHidden() || !table.model())
        {
            return;
        }
        QStringList& listCells = m_mapTables[table.objectName()];
        for (int n = 0; n < table.model()->rowCount() * g_nTableColumns; ++n)
        {
            listCells += table.model()->index(n / g_nTableColumns, n % g_nTableColumns).data().toString();
        }
    });
    VisitNamed<QWidget>(dialog,
                        [this](const QWidget& widget) { m_mapHidden[widget.objectName()] = widget.isHidden(); });
}

void CContents::Fill(const QWidget& dialog) const
{
    VisitNamed<QComboBox>(dialog, [this](QComboBox& combo) {
        const Combo contents = m_mapCombos.value(combo.objectName());
        combo.addItems(contents.first);
        combo.setCurrentIndex(contents.second);
    });
    VisitNamed<QLineEdit>(dialog, [this](QLineEdit& edit) { edit.setText(m_mapTexts.value(edit.objectName())); });
    VisitNamed<QGroupBox>(dialog, [this](QGroupBox& box) { box.setTitle(m_mapTitles.value(box.objectName())); });
    VisitNamed<QAbstractButton>(
        dialog, [this](QAbstractButton& button) { button.setChecked(m_mapChecked.value(button.objectName())); });
    VisitNamed<QTableView>(dialog, [this](QTableView& table) {
        const QStringList listCells = m_mapTables.value(table.objectName());
        auto* pModel = new QStandardItemModel(0, g_nTableColumns, &table);
        for (int n = 0; n < listCells.size(); ++n)
        {
            pModel->setItem(n / g_nTableColumns, n % g_nTableColumns, new QStandardItem(listCells[n]));
        }
        table.setModel(pModel);
    });
    VisitNamed<QWidget>(dialog, [this](QWidget& widget) {
        if (m_mapHidden.value(widget.objectName()))
        {
            widget.hide();
        }
    });
}

QDataStream& operator<<(QDataStream& stream, const CContents& contents)
{
    return stream << contents.m_mapCombos << contents.m_mapTexts << contents.m_mapTitles << contents.m_mapChecked
                  << contents.m_mapTables << contents.m_mapHidden;
}

QDataStream& operator>>(QDataStream& stream, CContents& contents)
{
    return stream >> contents.m_mapCombos >> contents.m_mapTexts >> contents.m_mapTitles >> contents.m_mapChecked >>
           contents.m_mapTables >> contents.m_mapHidden;
}
