#pragma once

#include <QProxyStyle>

class QAbstractItemView;
class QHelpEvent;

namespace LocalConfigClient
{

/// The system's style, but a text that is wider than its room ends in dots, and a tool tip tells the whole of it.
class ClientStyle : public QProxyStyle
{
    Q_OBJECT

public:
    ClientStyle();

    void drawItemText(QPainter* pPainter, const QRect& rect, int nFlags, const QPalette& palette, bool bEnabled,
                      const QString& strText, QPalette::ColorRole eRole) const override;

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
};

} // namespace LocalConfigClient
