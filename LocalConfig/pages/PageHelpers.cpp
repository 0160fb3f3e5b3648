#include "PageHelpers.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegExpValidator>
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
    pControl->setFocus();
    QToolTip::showText(pControl->mapToGlobal(QPoint(0, 0)), strText, pControl);
}

void SetPattern(QLineEdit* pEdit, const QString& strPattern)
{
    pEdit->setValidator(new QRegExpValidator(QRegExp(strPattern), pEdit));
}

} // namespace LocalConfig
