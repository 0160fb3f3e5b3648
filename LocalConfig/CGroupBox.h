#pragma once

#include <QGroupBox>

namespace LocalConfig
{

/// The card of one section in the dialog's scroll area.
class CGroupBox : public QGroupBox
{
    Q_OBJECT

public:
    explicit CGroupBox(QWidget* pParent);

    /// Navigation index of the section, 0 to 8; -1 until it is set.
    int GetIndex() const;
    void SetIndex(int nIndex);

    /// Whether this is the selected section; style sheets see it as the property "select", and the edges of the
    /// selected card in the state "on".
    bool IsSelect() const;
    void SetSelect(bool bSelect);

signals:
    /// A mouse button went down inside the box, or on a control of its page that does not use the press itself.
    void SignalGroupBoxClicked(int iIndex);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;

private:
    int m_iIndex = -1;
    bool m_bSelect = false;
};

} // namespace LocalConfig
