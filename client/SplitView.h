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

    /// \param nScale  0 shows pictures at their own size, 1 fills the panes; any other number changes nothing
    void SetDisplayScale(int nScale);
    int GetDisplayScale() const { return m_nDisplayScale; }

    /// Where a picture stands in its pane: filling it, or in its middle at its own size and cut off at the pane's
    /// edges.
    static QRect GetPicturePlace(const QRect& pane, const QSize& picture, int nScale);

    /// The panes of a split within an area, in reading order of their first row; empty for an unknown split.
    static QVector<QRect> GetPanes(int nSplit, const QRect& area);

protected:
    void paintEvent(QPaintEvent* pEvent) override;

private:
    int m_nSplit = 4;
    int m_nDisplayScale = 1;
    QColor m_gapColor = Qt::darkGray;
    QColor m_paneColor = Qt::black;
    QColor m_textColor = Qt::lightGray;
};

} // namespace LocalConfigClient
