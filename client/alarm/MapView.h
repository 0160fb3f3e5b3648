#pragma once

#include <QMap>
#include <QTimer>
#include <QWidget>

namespace LocalConfigClient
{

/// A plan of the site with a marker for each alarm category; markers flash. The mouse picks a marker; the arrow keys,
/// Home and End lead to one, and Space picks it. The colours are properties, so that style sheets can set them.
class MapView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor groundColor MEMBER m_groundColor)
    Q_PROPERTY(QColor wallColor MEMBER m_wallColor)
    Q_PROPERTY(QColor markerColor MEMBER m_markerColor)
    Q_PROPERTY(QColor flashColor MEMBER m_flashColor)
    Q_PROPERTY(QColor textColor MEMBER m_textColor)
    Q_PROPERTY(QColor focusColor MEMBER m_focusColor)

public:
    explicit MapView(QWidget* pParent);

    /// \param mapCategories  category id -> name
    void SetCategories(const QMap<int, QString>& mapCategories);

    /// Flashes a category's marker, and no other one, until StopFlash. Without such a marker nothing flashes.
    void Flash(int nCategory);
    void StopFlash();

    bool IsFlashing() const { return m_timer.isActive(); }
    int GetFlashingCategory() const { return m_nCategory; }

    QSize sizeHint() const override;

signals:
    void SignalCategoryPicked(int nCategory);

protected:
    bool event(QEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;

private:
    QRect GetRoom(int nPlace) const;
    QRect GetTextRect(int nPlace) const;
    void GoTo(int nPlace);

    QMap<int, QString> m_mapCategories;
    int m_nPlace = 0; // in the map, of the marker that the keyboard is at
    int m_nCategory = 0;
    bool m_bLit = false;
    QTimer m_timer;
    QColor m_groundColor = Qt::lightGray;
    QColor m_wallColor = Qt::darkGray;
    QColor m_markerColor = Qt::blue;
    QColor m_flashColor = Qt::red;
    QColor m_textColor = Qt::black;
    QColor m_focusColor = Qt::blue;
};

} // namespace LocalConfigClient
