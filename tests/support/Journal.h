#pragma once

#include <QString>
#include <QStringList>

/// What happened, in order. The fakes of one test share one journal, so a test can state an order across them.
class CJournal
{
public:
    void Note(const QString& strEntry) { m_listEntries += strEntry; }

    /// Everything noted since the last call.
    QStringList Take()
    {
        QStringList listEntries;
        listEntries.swap(m_listEntries);
        return listEntries;
    }

private:
    QStringList m_listEntries;
};
