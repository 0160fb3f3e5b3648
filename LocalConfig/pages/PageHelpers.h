#pragma once

#include <QString>

#include <functional>
#include <initializer_list>
#include <string>

class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QWidget;

namespace KVGUI
{
class KvLineEdit;
}

namespace LocalConfig
{

/// What several pages do alike.

/// Makes a page a tool window and at once a child again; before it has children, which would all be styled anew.
void PassToolWindow(QWidget* pPage);

/// Appends the translated colon to captions, once, when a page is built.
void AppendColon(const QString& strColon, std::initializer_list<QLabel*> listCaptions);

/// An entry of a combo box that stands for a number of the record.
struct SItem
{
    const char* pszText;
    int nData;
};

/// Has screen readers tell with controls what stands beside them: a range, or what a group of radio buttons is about.
/// A label leads to one control only.
void Describe(const QLabel* pText, std::initializer_list<QWidget*> listControls);

/// Selects the item with this text, or none.
void SelectText(QComboBox* pCombo, const QString& strText);

/// A range of whole numbers, as records and messages name it.
struct SRange
{
    int nMin;
    int nMax;

    bool Contains(int nNumber) const { return nNumber >= nMin && nNumber <= nMax; }

    /// A template with %1 and %2, filled with the two ends.
    QString Fill(const QString& strTemplate) const;
};

/// Scrolls to a control that is not wholly in sight.
void ScrollTo(QWidget* pControl);

/// Puts the focus on a control, scrolled into view, and shows a text as tool tip at its place, an empty one none.
/// \return what does so again; to a locked control leads what it is locked by
std::function<void()> PointAt(QWidget* pControl, const QString& strText);

/// Likewise for a refused field that keeps its text: it is marked instead.
std::function<void()> PointAtKept(KVGUI::KvLineEdit* pEdit);

/// Lets a field take only what a pattern accepts, or the beginning of it. The page owns the validator.
void SetPattern(QWidget* pPage, QLineEdit* pEdit, const QString& strPattern);

/// Keeps a field's validator in force while the field shows a stored text that it refuses: QLineEdit would then take
/// anything. Such a text can be shortened, or give way to one that is not refused.
void HoldToValidator(QLineEdit* pEdit);

/// Empties a field for good; what clear() takes away comes back with undo.
void Empty(QLineEdit* pEdit);

/// Sets a number, which undo does not reach behind.
void ShowNumber(QSpinBox* pSpinBox, int nNumber);

/// Takes mark and tip from a field.
void ClearHint(KVGUI::KvLineEdit* pEdit);

/// The folder of this name in the client's own folder, with a separator at its end.
QString GetDefaultFolder(const char* pszName);

/// Shows a stored folder, or the default one where none is stored, with a separator at its end.
void ShowFolder(KVGUI::KvLineEdit* pEdit, const std::string& strStored, const QString& strDefault);

} // namespace LocalConfig
