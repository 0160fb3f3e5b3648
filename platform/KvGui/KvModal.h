#pragma once

#include <QPointer>

#include <utility>

namespace KVGUI
{

/// A dialog on the heap, for as long as it is shown modally. Whoever owns its parent may delete that meanwhile, and the
/// dialog goes with it; one on the stack would then be deleted twice.
template <class Dialog>
class KvModal
{
public:
    /// \param arguments  of the dialog's constructor
    template <class... Arguments>
    explicit KvModal(Arguments&&... arguments)
        : m_pDialog(new Dialog(std::forward<Arguments>(arguments)...))
    {}

    ~KvModal() { delete m_pDialog; }

    KvModal(const KvModal&) = delete;
    KvModal& operator=(const KvModal&) = delete;

    /// Shows the dialog and waits until it closes.
    /// \return false when the dialog has gone, and its parent with it
    bool Exec()
    {
        m_pDialog->exec();
        return m_pDialog;
    }

    Dialog* operator->() const { return m_pDialog; } ///< null once the dialog has gone

private:
    QPointer<Dialog> m_pDialog;
};

} // namespace KVGUI
