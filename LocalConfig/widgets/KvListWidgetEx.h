#pragma once

#include <KvGui/KvListWidget.h>

namespace LocalConfig
{

/// List that tells when it is hidden.
class KvListWidgetEx : public KVGUI::KvListWidget
{
    Q_OBJECT

public:
    explicit KvListWidgetEx(QWidget* pParent = nullptr);

signals:
    void sgnHide();

protected:
    void hideEvent(QHideEvent* pEvent) override;
};

} // namespace LocalConfig
