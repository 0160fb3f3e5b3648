#pragma once

#include <QWidget>

#include <memory>

namespace Ui
{
class CSplitWndNumConfig;
}

namespace LocalConfig
{

/// Popup of ten split pictures, among which the arrow keys move. It reports the one that is picked and leaves showing
/// and hiding to its owner.
class CSplitWndNumConfig : public QWidget
{
    Q_OBJECT

public:
    explicit CSplitWndNumConfig(QWidget* pParent);
    ~CSplitWndNumConfig() override;

    /// Whether the keyboard is on the picture of this number.
    bool HasKeyboardOn(int nSplit) const;

    /// What the picture of this number is called; empty where there is none.
    QString GetText(int nSplit) const;

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

signals:
    /// \param splitNum  1, 4, 6, 8, 9, 13, 16, 20, 25 or 36
    void sgnSplitChanged(int splitNum);

protected:
    void showEvent(QShowEvent* pEvent) override;

private slots:
    void OnNormalClicked();

private:
    void MoveFocus(QWidget* pButton, QPoint step);

    std::unique_ptr<Ui::CSplitWndNumConfig> m_pUi;
};

} // namespace LocalConfig
