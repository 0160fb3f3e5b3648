#include "KvPushButton.h"

namespace KVGUI
{

KvPushButton::KvPushButton(QWidget* pParent)
    : QPushButton(pParent)
{}

KvPushButton::KvPushButton(const QString& strText, QWidget* pParent)
    : QPushButton(strText, pParent)
{}

QSize KvPushButton::sizeHint() const
{
    QFont bold = font();
    bold.setBold(true);
    const int nMore = QFontMetrics(bold).horizontalAdvance(text()) - fontMetrics().horizontalAdvance(text());
    return QPushButton::sizeHint() + QSize(qMax(nMore, 0), 0);
}

} // namespace KVGUI
