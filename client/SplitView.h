#pragma once

#include <QVector>
#include <QWidget>

namespace LocalConfigClient
{

/// The live-view area: one pane for each video window of the current split. The colours are properties, so that style
/// sheets can set them.
class SplitView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor gapColor MEMBER m_gapColor)
    Q_PROPERTY(QColor paneColor MEMBER m_paneColor)
    Q_PROPERTY(QColor textColor MEMBER m_textColor)

public:
    explicit SplitView(QWidget* pParent);

    /// \param nSplit  1, 4, 6, 8, 9, 13, 16, 20, 25 or 36; any other number leaves the view as it is
    void SetSplit(int nSplit);
    int GetSplit() const { return m_nSplit; }

    /// The panes of a split within an area, in reading order of their first row; empty for an unknown split.
    static QVector<QRect> GetPanes(int nSplit, const QRect& area);

protected:
    void paintEvent(QPaintEvent* pEvent) override;

private:
    int m_nSplit = 4;
    QColor m_gapColor = Qt::darkGray;
    QColor m_paneColor = Qt::black;
    QColor m_textColor = Qt::lightGray;
};

} // namespace LocalConfigClient
