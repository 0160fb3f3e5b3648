#include "ClientStyle.h"

#include <UICommonModule/Pxa.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace LocalConfigClient
{

namespace
{

/// What a section of a header tells that does not show all of its text.
QString GetCutText(const QHeaderView& header, const QPoint& place)
{
    const int nSection = header.logicalIndexAt(place);
    const bool bCut = nSection >= 0 && header.sectionSizeHint(nSection) > header.sectionSize(nSection);
    return bCut ? header.model()->headerData(nSection, header.orientation()).toString() : QString();
}

/// Likewise an item.
QString GetCutText(const QAbstractItemView& view, const QPoint& place)
{
    const QModelIndex index = view.indexAt(place);
    const bool bCut = index.isValid() && view.sizeHintForIndex(index).width() > view.visualRect(index).width();
    return bCut ? index.data().toString() : QString();
}

/// Likewise any other control.
QString GetCutText(QWidget& control)
{
    Pxa::QCommon::AddToolTipByControlWidth(&control);
    QString strText = control.toolTip();
    control.setToolTip(QString()); // the text or the room may be another one next time
    return strText;
}

QString FindCutText(QWidget& widget, const QPoint& place)
{
    if (!widget.toolTip().isEmpty())
    {
        return {}; // it has something else to tell
    }
    QWidget* pParent = widget.parentWidget();
    if (const auto* pHeader = qobject_cast<const QHeaderView*>(pParent))
    {
        return GetCutText(*pHeader, place);
    }
    const auto* pView = qobject_cast<const QAbstractItemView*>(pParent);
    return pView && pView->viewport() == &widget ? GetCutText(*pView, place) : GetCutText(widget);
}

} // namespace

ClientStyle::ClientStyle()
{
    qApp->installEventFilter(this);
}

void ClientStyle::drawItemText(QPainter* pPainter, const QRect& rect, int nFlags, const QPalette& palette,
                               bool bEnabled, const QString& strText, QPalette::ColorRole eRole) const
{
    const bool bLines = (nFlags & Qt::TextWordWrap) || strText.contains(QLatin1Char('\n'));
    const QString strShown =
        bLines ? strText : pPainter->fontMetrics().elidedText(strText, Qt::ElideRight, rect.width(), nFlags);
    QProxyStyle::drawItemText(pPainter, rect, nFlags, palette, bEnabled, strShown, eRole);
}

bool ClientStyle::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    auto* pWidget = pEvent->type() == QEvent::ToolTip ? qobject_cast<QWidget*>(pWatched) : nullptr;
    if (!pWidget)
    {
        return false;
    }
    const auto* pHelp = static_cast<QHelpEvent*>(pEvent);
    const QString strText = FindCutText(*pWidget, pHelp->pos());
    if (!strText.isEmpty())
    {
        QToolTip::showText(pHelp->globalPos(), strText, pWidget);
    }
    return !strText.isEmpty();
}

} // namespace LocalConfigClient
