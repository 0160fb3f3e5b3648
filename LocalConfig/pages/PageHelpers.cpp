#include "PageHelpers.h"

#include <KvGui/KvAlert.h>
#include <KvGui/KvDir.h>
#include <KvGui/KvLineEdit.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QRegExpValidator>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
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

/// Stands between the events and the tip that is shown, so that the tip does not go when it comes under the mouse: its
/// window makes the mouse leave the one below.
class CTipKeeper : public QObject
{
public:
    explicit CTipKeeper(QWidget* pTip)
        : QObject(pTip)
        , m_strText(QToolTip::text())
    {
        qApp->removeEventFilter(pTip);
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        const bool bKeep = pEvent->type() == QEvent::Leave && QToolTip::text() == m_strText;
        return !bKeep && parent()->eventFilter(pWatched, pEvent);
    }

private:
    QString m_strText;
};

void ShowTip(QWidget* pControl, const QString& strText)
{
    QToolTip::showText(pControl->mapToGlobal(QPoint(0, 0)), strText, pControl);
    for (QWidget* pWindow : QApplication::topLevelWidgets())
    {
        if (pWindow->inherits("QTipLabel") && pWindow->isVisible())
        {
            new CTipKeeper(pWindow); // dies with the tip
            KVGUI::KvAlert::Show(pWindow);
        }
    }
}

QScrollArea* FindScrollArea(QWidget* pWidget)
{
    while (pWidget && !qobject_cast<QScrollArea*>(pWidget))
    {
        pWidget = pWidget->parentWidget();
    }
    return static_cast<QScrollArea*>(pWidget);
}

/// The control, or the last one before it that is not locked: what a control is locked by stands before it.
QWidget* FindUsable(QWidget* pControl)
{
    QWidget* pUsable = pControl;
    while (!pUsable->isEnabled() || !(pUsable->focusPolicy() & Qt::TabFocus))
    {
        pUsable = pUsable->previousInFocusChain();
        if (pUsable == pControl)
        {
            break;
        }
    }
    return pUsable;
}

/// Puts the focus on a control, scrolled into view, and tells the user about it.
template <class Tell>
std::function<void()> Point(QWidget* pControl, Tell tell)
{
    const auto point = [pControl, tell] {
        ScrollTo(pControl);
        FindUsable(pControl)->setFocus();
        tell();
    };
    point();
    return point;
}

} // namespace

void PassToolWindow(QWidget* pPage)
{
    pPage->setWindowFlags(Qt::Tool);
    pPage->setWindowFlags({});
}

void AppendColon(const QString& strColon, std::initializer_list<QLabel*> listCaptions)
{
    for (QLabel* pCaption : listCaptions)
    {
        pCaption->setText(pCaption->text() + strColon);
    }
}

void Describe(const QLabel* pText, std::initializer_list<QWidget*> listControls)
{
    for (QWidget* pControl : listControls)
    {
        pControl->setAccessibleDescription(pText->text());
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

void ScrollTo(QWidget* pControl)
{
    QScrollArea* pScrollArea = FindScrollArea(pControl);
    if (!pScrollArea)
    {
        return;
    }
    const QWidget* pView = pScrollArea->viewport();
    if (pView->rect().contains(QRect(pControl->mapTo(pView, QPoint()), pControl->size())))
    {
        return;
    }
    // On the way is the top of its section, where the navigation takes notice as it does when a user scrolls there.
    const QWidget* pSection = pControl;
    while (pSection->parentWidget() != pScrollArea->widget())
    {
        pSection = pSection->parentWidget();
    }
    pScrollArea->verticalScrollBar()->setValue(pSection->y());
    pScrollArea->ensureWidgetVisible(pControl);
}

std::function<void()> PointAt(QWidget* pControl, const QString& strText)
{
    return Point(pControl, [pControl, strText] { ShowTip(pControl, strText); });
}

std::function<void()> PointAtKept(KVGUI::KvLineEdit* pEdit)
{
    return Point(pEdit, [pEdit] {
        QToolTip::hideText();
        pEdit->showErrorHintNoTip(true);
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
