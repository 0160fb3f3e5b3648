#include "CGroupBox.h"

#include "SkinStyle.h"

#include <QStyle>
#include <QStyleOptionGroupBox>
#include <QStylePainter>
#include <QVariant>

namespace LocalConfig
{

namespace
{

constexpr int g_nEdge = 8; // pixels of either edge of a selected card that are in the state "on", see its sheet

} // namespace

CGroupBox::CGroupBox(QWidget* pParent)
    : QGroupBox(pParent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed); // pages stretch, their boxes do not
    setObjectName(QStringLiteral("CGroupBox"));
    ApplySkinStyle(this);
}

int CGroupBox::GetIndex() const
{
    return m_iIndex;
}

void CGroupBox::SetIndex(int nIndex)
{
    m_iIndex = nIndex;
}

bool CGroupBox::IsSelect() const
{
    return m_bSelect;
}

void CGroupBox::SetSelect(bool bSelect)
{
    if (bSelect == m_bSelect)
    {
        return;
    }
    m_bSelect = bSelect;
    setProperty("select", bSelect);
    style()->polish(this);
    update();
}

void CGroupBox::paintEvent(QPaintEvent* /*pEvent*/)
{
    QStylePainter painter(this);
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    if (m_bSelect)
    {
        // Filling the whole card with a gradient for the sake of its edges costs as much as painting its controls.
        option.state |= QStyle::State_On;
        const QRect inner = rect().adjusted(g_nEdge, 0, -g_nEdge, 0);
        painter.setClipRegion(QRegion(rect()) - inner);
        painter.drawComplexControl(QStyle::CC_GroupBox, option);
        option.state &= ~QStyle::State_On;
        painter.setClipRect(inner);
    }
    painter.drawComplexControl(QStyle::CC_GroupBox, option);
}

void CGroupBox::mousePressEvent(QMouseEvent* pEvent)
{
    QGroupBox::mousePressEvent(pEvent);
    emit SignalGroupBoxClicked(m_iIndex);
}

} // namespace LocalConfig
