#include "CGroupBox.h"

#include "SkinStyle.h"

#include <QStyle>
#include <QVariant>

namespace LocalConfig
{

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

void CGroupBox::mousePressEvent(QMouseEvent* pEvent)
{
    QGroupBox::mousePressEvent(pEvent);
    emit SignalGroupBoxClicked(m_iIndex);
}

} // namespace LocalConfig
