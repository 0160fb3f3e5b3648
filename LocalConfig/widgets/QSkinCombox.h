#pragma once

#include <LocalConfig/widgets/CCombobox.h>

#include <QColor>
#include <QPixmap>

namespace LocalConfig
{

/// Combo box that keeps what a skin paints it from, follows the mouse with its state, listens to navigation keys only
/// and opens a list in which no item is cut.
class QSkinCombox : public CCombobox
{
    Q_OBJECT

public:
    explicit QSkinCombox(QWidget* pParent);

    void SetStatePixmaps(const QPixmap& pixNormal, const QPixmap& pixHover, const QPixmap& pixPressed,
                         const QPixmap& pixDisable);

    /// Cuts a strip into five frames of one width: normal, hover, pressed, disabled, and one that is not used. A null
    /// strip changes nothing.
    void SetStatePixmap(const QPixmap& pixStrip);

    void SetTextPixmap(const QPixmap& pixText);

    void showPopup() override;
    void hidePopup() override;

protected:
    enum EState
    {
        StateNormal,
        StateHovered,
        StatePressed ///< or open
    };

    void enterEvent(QEvent* pEvent) override;
    void leaveEvent(QEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

    int m_nState = StateNormal;
    QPixmap m_pixNormal;
    QPixmap m_pixHover;
    QPixmap m_pixPressed;
    QPixmap m_pixDisable;
    QPixmap m_pixText;
    QColor m_textColor = Qt::white;
    int m_nMargin = 6; // pixels

private:
    void SetState(int nState);
    void WidenPopup();
};

} // namespace LocalConfig
