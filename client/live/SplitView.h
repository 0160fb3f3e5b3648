#pragma once

#include <QImage>
#include <QMap>
#include <QVector>
#include <QWidget>

namespace LocalConfigClient
{

/// The live-view area: one pane for each video window of the current split. The mouse selects a pane, as do the arrow
/// keys, Home and End. The colours are properties, so that style
/// sheets can set them.
class SplitView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor gapColor MEMBER m_gapColor)
    Q_PROPERTY(QColor paneColor MEMBER m_paneColor)
    Q_PROPERTY(QColor textColor MEMBER m_textColor)
    Q_PROPERTY(QColor selectedColor MEMBER m_selectedColor)
    Q_PROPERTY(QColor focusColor MEMBER m_focusColor)
    Q_PROPERTY(QColor recordedColor MEMBER m_recordedColor)

public:
    explicit SplitView(QWidget* pParent);

    /// \param nSplit  1, 4, 6, 8, 9, 13, 16, 20, 25 or 36; any other number leaves the view as it is
    void SetSplit(int nSplit);
    int GetSplit() const { return m_nSplit; }

    /// \param nScale  0 shows pictures at their own size, 1 fills the panes; any other number changes nothing
    void SetDisplayScale(int nScale);
    int GetDisplayScale() const { return m_nDisplayScale; }

    /// The pane that single-window actions are for, counted from 0.
    int GetSelected() const { return m_nSelected; }

    /// Any number that is no pane's leaves the selection as it is.
    void Select(int nPane);

    /// Marks the pane that is recorded; -1 for none.
    void SetRecorded(int nPane);

    /// Shows the selected pane alone, or all panes again.
    void ToggleSingleWindow();
    bool IsSingleWindow() const { return m_bSingleWindow; }

    /// The picture of a pane's camera, which is a drawing that tells the camera and the time.
    QImage GetPicture(int nPane) const;

    /// The name of a pane's camera.
    static QString GetChannelName(int nPane);

    /// Where a picture stands in its pane: filling it, or in its middle at its own size and cut off at the pane's
    /// edges.
    static QRect GetPicturePlace(const QRect& pane, const QSize& picture, int nScale);

    /// The panes of a split within an area, in reading order of their first row; empty for an unknown split.
    static QVector<QRect> GetPanes(int nSplit, const QRect& area);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;

private:
    /// The panes that are seen and where; by pane.
    QMap<int, QRect> GetShownPanes() const;
    int FindNeighbour(int nKey) const;
    void ShowSelection();
    void PaintRecorded(QPainter& painter, const QRect& pane) const;
    void PaintPane(QPainter& painter, int nPane, const QRect& pane) const;

    int m_nSplit = 4;
    int m_nDisplayScale = 1;
    int m_nSelected = 0;
    int m_nRecorded = -1;
    bool m_bSingleWindow = false;
    QColor m_gapColor = Qt::darkGray;
    QColor m_paneColor = Qt::black;
    QColor m_textColor = Qt::lightGray;
    QColor m_selectedColor = Qt::white;
    QColor m_focusColor = Qt::yellow;
    QColor m_recordedColor = Qt::red;
};

} // namespace LocalConfigClient
