#pragma once

#include <client/store/RecordFields.h>

#include <map>
#include <string>

/// Gives every field a value that it does not have by default, made up from its default and a running number.
class CFieldChanger
{
public:
    template <class Value>
    void operator()(const char* /*pszName*/, Value& value)
    {
        Change(value);
    }

private:
    void Change(bool& bValue) { bValue = !bValue; }
    void Change(std::int32_t& nValue) { nValue = nValue + ++m_nNext; }
    void Change(std::uint32_t& nValue) { nValue = nValue + std::uint32_t(++m_nNext); }
    void Change(std::uint8_t& nValue) { nValue = std::uint8_t(nValue + 1 + (++m_nNext) % 200); }
    void Change(std::string& value) { value += "text " + std::to_string(++m_nNext) + " \xe5\xae\xa2"; }
    void Change(std::map<std::int32_t, bool>& map)
    {
        map[-5] = true;
        map[++m_nNext] = false;
        map[7 + ++m_nNext] = true;
    }
    void Change(std::map<std::int32_t, LocalConfigLogical::AlarmSoundInfo>& map)
    {
        for (int nKey : {200000, 3})
        {
            LocalConfigClient::VisitFields(map[nKey], *this);
        }
    }
    template <class Record>
    void Change(Record& record)
    {
        LocalConfigClient::VisitFields(record, *this);
    }

    int m_nNext = 0;
};

/// Settings in which no field has its default value.
inline LocalConfigClient::Settings ChangedSettings()
{
    LocalConfigClient::Settings settings;
    CFieldChanger changer;
    LocalConfigClient::VisitFields(settings, changer);
    settings.video.nDefaultSplit = 9; // one that has pictures
    return settings;
}
