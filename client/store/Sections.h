#pragma once

#include "AlarmRecord.h"
#include "RecordFields.h"

#include <functional>
#include <optional>

namespace LocalConfigClient
{

/// A section whose working record is all there is to it.
template <class Interface, class Record>
class RecordSection final : public Interface
{
public:
    explicit RecordSection(Record& working)
        : m_working(working)
    {}

    int SetConfig(const Record& record) override
    {
        m_working = record;
        return 0;
    }

    void GetConfig(Record& record) override { record = m_working; }

private:
    Record& m_working;
};

/// The Basic section also hears whether the system's auto-start entry names this client.
class BasicSection final : public LocalConfigLogical::IBasicSection
{
public:
    explicit BasicSection(LocalConfigLogical::BasicConfigInfo& working)
        : m_working(working)
    {}

    void SetAutoRunState(bool bAutoRun) override { m_autoRunEntry = bAutoRun; }

    int SetConfig(const LocalConfigLogical::BasicConfigInfo& record) override
    {
        m_working = record;
        return 0;
    }

    void GetConfig(LocalConfigLogical::BasicConfigInfo& record) override { record = m_working; }

    /// What the page has seen of the system's entry; nothing before it was shown.
    std::optional<bool> GetAutoRunEntry() const { return m_autoRunEntry; }

private:
    LocalConfigLogical::BasicConfigInfo& m_working;
    std::optional<bool> m_autoRunEntry;
};

/// The Alarm section keeps changes that are not to persist in the working record alone, where ResetConfig drops them.
class AlarmSection final : public LocalConfigLogical::IAlarmSection
{
public:
    using StoreHandler = std::function<void(const LocalConfigLogical::AlarmConfigInfo&)>;

    /// \param storeHandler  called with a record that is to persist although nobody is saving
    AlarmSection(LocalConfigLogical::AlarmConfigInfo& working, StoreHandler storeHandler)
        : m_working(working)
        , m_storeHandler(std::move(storeHandler))
    {}

    /// What ResetConfig goes back to.
    void Accept(const LocalConfigLogical::AlarmConfigInfo& record) { m_accepted = record; }

    int SetConfig(const LocalConfigLogical::AlarmConfigInfo& record, bool bPersist) override
    {
        m_working = record;
        if (bPersist)
        {
            Accept(record);
            if (!m_bSaving)
            {
                m_storeHandler(record);
            }
            m_bSaving = false;
        }
        return 0;
    }

    void GetConfig(LocalConfigLogical::AlarmConfigInfo& record) override { record = m_working; }

    void ResetConfig(bool bUseDefaults) override
    {
        m_working = m_accepted;
        if (!bUseDefaults)
        {
            return;
        }
        // The maps tell which categories and types there are, so their keys stay.
        LocalConfigLogical::AlarmConfigInfo defaults;
        defaults.flashCategories = m_accepted.flashCategories;
        defaults.alarmSounds = m_accepted.alarmSounds;
        for (auto& category : defaults.flashCategories)
        {
            category.second = category.second || HasPlaceOnMap(category.first);
        }
        for (auto& sound : defaults.alarmSounds)
        {
            sound.second.customSound.clear();
        }
        m_working = defaults;
    }

    /// The record that comes next belongs to a save of all sections, which may still fail.
    void PrepareSave() override { m_bSaving = true; }

private:
    LocalConfigLogical::AlarmConfigInfo& m_working;
    StoreHandler m_storeHandler;
    LocalConfigLogical::AlarmConfigInfo m_accepted;
    bool m_bSaving = false;
};

} // namespace LocalConfigClient
