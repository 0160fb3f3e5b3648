#include "PageHelpers.h"

#include <KvGui/KvDir.h>
#include <KvGui/KvLineEdit.h>

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QRegExpValidator>
#include <QScrollArea>
#include <QSpinBox>
#include <QTimer>
#include <QToolTip>

namespace LocalConfig
{

namespace
{

/// Whether a text is what deleting characters makes of another one.
bool IsShortened(const QString& strText, const QString& strWhole)
{
    int nFound = 0;
    for (const QChar ch : strWhole)
    {
        nFound += nFound < strText.size() && strText[nFound] == ch ? 1 : 0;
    }
    return nFound == strText.size();
}

class CValidatorGuard : public QObject
{
public:
    explicit CValidatorGuard(QLineEdit* pEdit)
        : QObject(pEdit)
        , m_pEdit(pEdit)
        , m_strBefore(pEdit->text())
    {
        connect(pEdit, &QLineEdit::textEdited, this, &CValidatorGuard::OnTextEdited);
        connect(pEdit, &QLineEdit::textChanged, this, [this] { m_strBefore = m_pEdit->text(); });
    }

private:
    void OnTextEdited(QString strText)
    {
        int nPosition = 0;
        if (m_pEdit->validator()->validate(strText, nPosition) == QValidator::Invalid &&
            !IsShortened(strText, m_strBefore))
        {
            m_pEdit->undo();
        }
    }

    QLineEdit* m_pEdit;
    QString m_strBefore;
};

} // namespace

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
    HoldToValidator(pEdit);
}

void HoldToValidator(QLineEdit* pEdit)
{
    new CValidatorGuard(pEdit); // dies with the field
}

void Empty(QLineEdit* pEdit)
{
    pEdit->setText(QString());
}

void ShowNumber(QSpinBox* pSpinBox, int nNumber)
{
    pSpinBox->setValue(nNumber);
    auto* pEdit = pSpinBox->findChild<QLineEdit*>();
    pEdit->setText(pEdit->text()); // the box itself sets no text that it shows already
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
