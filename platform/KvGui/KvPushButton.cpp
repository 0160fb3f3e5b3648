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
    const int nMore = QFontMetrics(bold).size(Qt::TextShowMnemonic, text()).width() -
                      fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    return QPushButton::sizeHint() + QSize(qMax(nMore, 0), 0);
}

} // namespace KVGUI
