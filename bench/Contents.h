#pragma once

#include <QMap>
#include <QPair>
#include <QString>
#include <QStringList>

class QDataStream;
class QWidget;

/// What a dialog's controls show, by their names, so that another one with such controls can show it.
class CContents
{
public:
    CContents() = default;
    explicit CContents(const QWidget& dialog);

    void Fill(const QWidget& dialog) const;

    /// For another process.
    friend QDataStream& operator<<(QDataStream& stream, const CContents& contents);
    friend QDataStream& operator>>(QDataStream& stream, CContents& contents);

private:
    using Combo = QPair<QStringList, int>; // items and current index

    QMap<QString, Combo> m_mapCombos;
    QMap<QString, QString> m_mapTexts;
    QMap<QString, QString> m_mapTitles;
    QMap<QString, bool> m_mapChecked;
    QMap<QString, QStringList> m_mapTables;
    QMap<QString, bool> m_mapHidden;
};
