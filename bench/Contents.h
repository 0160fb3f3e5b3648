#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

class QWidget;

/// What a dialog's controls show, by their names, so that another one with such controls can show it.
class CContents
{
public:
    explicit CContents(const QWidget& dialog);

    void Fill(const QWidget& dialog) const;

private:
    struct SCombo
    {
        QStringList listItems;
        int nCurrent;
    };

    QMap<QString, SCombo> m_mapCombos;
    QMap<QString, QString> m_mapTexts;
    QMap<QString, QString> m_mapTitles;
    QMap<QString, bool> m_mapChecked;
    QMap<QString, QStringList> m_mapTables;
    QMap<QString, bool> m_mapHidden;
};
