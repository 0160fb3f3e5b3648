#include "PageHelpers.h"

#include <KvGui/KvDir.h>
#include <KvGui/KvLineEdit.h>

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QRegExpValidator>
#include <QScrollArea>
#include <QTimer>
#include <QToolTip>

namespace LocalConfig
{

void AppendColon(const QString& strColon, std::initializer_list<QLabel*> listCaptions)
{
    for (QLabel* pCaption : listCaptions)
    {
        pCaption->setText(pCaption->text() + strColon);
    }
}

void SelectText(QComboBox* pCombo, const QString& strText)
{
    pCombo->setCurrentIndex(pCombo->findText(strText, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

QString SRange::Fill(const QString& strTemplate) const
{
    return strTemplate.arg(nMin).arg(nMax);
}

void PointAt(QWidget* pControl, const QString& strText)
{
    const auto point = [pControl, strText] {
        for (QWidget* pWidget = pControl->parentWidget(); pWidget; pWidget = pWidget->parentWidget())
        {
            if (auto* pScrollArea = qobject_cast<QScrollArea*>(pWidget))
            {
                pScrollArea->ensureWidgetVisible(pControl);
            }
        }
        pControl->setFocus();
        QToolTip::showText(pControl->mapToGlobal(QPoint(0, 0)), strText, pControl);
    };
    point();
    // Once more after a refused save, when the dialog has loaded its pages again: that moves the focus, and the tip
    // goes.
    QTimer::singleShot(0, pControl, [pControl, point] {
        if (pControl->isVisible())
        {
            point();
        }
    });
}

void SetPattern(QWidget* pPage, QLineEdit* pEdit, const QString& strPattern)
{
    pEdit->setValidator(new QRegExpValidator(QRegExp(strPattern), pPage));
}

void ClearHint(KVGUI::KvLineEdit* pEdit)
{
    pEdit->showErrorHint(nullptr, true, QString());
}

QString GetDefaultFolder(const char* pszName)
{
    return QDir::toNativeSeparators(
        QStringLiteral("%1/%2/").arg(KVGUI::KvDir::GetCurrentPath(), QString::fromLatin1(pszName)));
}

void ShowFolder(KVGUI::KvLineEdit* pEdit, const std::string& strStored, const QString& strDefault)
{
    QString strFolder = strStored.empty() ? strDefault : QString::fromStdString(strStored);
    if (!strFolder.endsWith(QLatin1Char('/')) && !strFolder.endsWith(QLatin1Char('\\')))
    {
        strFolder += QLatin1Char('/');
    }
    pEdit->clear(); // a folder that is shown again is judged again
    ClearHint(pEdit);
    pEdit->setText(QDir::toNativeSeparators(strFolder));
}

} // namespace LocalConfig
