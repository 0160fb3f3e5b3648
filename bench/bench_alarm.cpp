// How the alarm page grows with the host's record: loading, restoring defaults and saving, beside the floor, which is
// filling a plain combo box item by item.
//
// Run it from a release build: build/release/bin/bench-alarm. 10,000 sounds are to load in less than 50 times the floor
// of 1,000 items, and nothing is to grow faster than linearly.

#include "support/FakeSections.h"

#include <LocalConfig/pages/CAlarmConfig.h>
#include <UICommonModule/CAlarmType.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>

using LocalConfig::CAlarmConfig;
using LocalConfigLogical::AlarmConfigInfo;
using LocalConfigLogical::AlarmSoundInfo;

namespace
{

constexpr int g_nMaxTypes = 10000;
constexpr int g_nMaxCategories = 1000;
constexpr int g_nFirstType = 10000; // clear of the ids that share a sound
constexpr int g_nFirstCategory = 100;

/// As many categories and types as any of the measurements needs.
bool LoadCatalogue(const QString& strFile)
{
    QByteArray content = "<AlarmTypes>";
    for (int nCategory = 0; nCategory < g_nMaxCategories; ++nCategory)
    {
        const QByteArray number = QByteArray::number(g_nFirstCategory + nCategory);
        content += "<Category id='" + number + "' name='Category " + number + "'><Group id='" + number +
                   "' name='Group' sound='alarm.wav'>";
        for (int nType = nCategory; nType < g_nMaxTypes; nType += g_nMaxCategories)
        {
            const QByteArray type = QByteArray::number(g_nFirstType + nType);
            content += "<Type id='" + type + "' name='Alarm type " + type + "'/>";
        }
        content += "</Group></Category>";
    }
    QFile file(strFile);
    const QByteArray whole = content + "</AlarmTypes>";
    return file.open(QIODevice::WriteOnly) && file.write(whole) == whole.size() &&
           (file.close(), UICommonMdl::CAlarmType::Instance()->Load(strFile) == 1);
}

AlarmConfigInfo MakeRecord(int nSounds, int nCategories)
{
    AlarmConfigInfo record;
    for (int n = 0; n < nSounds; ++n)
    {
        AlarmSoundInfo& sound = record.alarmSounds[g_nFirstType + n];
        sound.alarmType = g_nFirstType + n;
        sound.defaultSound = "alarm.wav";
    }
    for (int n = 0; n < nCategories; ++n)
    {
        record.flashCategories[g_nFirstCategory + n] = n % 3 != 0;
    }
    return record;
}

/// A page with a section, in a window that is shown.
struct SPage
{
    explicit SPage(const AlarmConfigInfo& record)
        : section(journal)
        , page(&window)
    {
        section.m_record = record;
        page.SetConfigSection(&section);
        window.show();
        QApplication::processEvents();
    }

    CJournal journal;
    CFakeAlarmSection section;
    QWidget window;
    CAlarmConfig page;
};

template <class Action>
void Measure(benchmark::State& state, Action action)
{
    SPage page(MakeRecord(int(state.range(0)), int(state.range(1))));
    for (auto _ : state)
    {
        action(page.page);
        state.PauseTiming();
        page.journal.Take();
        state.ResumeTiming();
    }
}

void BM_Load(benchmark::State& state)
{
    Measure(state, [](CAlarmConfig& page) { page.LoadConfig(false); });
}

void BM_Defaults(benchmark::State& state)
{
    Measure(state, [](CAlarmConfig& page) { page.LoadConfig(true); });
}

void BM_Save(benchmark::State& state)
{
    Measure(state, [](CAlarmConfig& page) { benchmark::DoNotOptimize(page.SaveConfig()); });
}

/// The floor: 1,000 calls of addItem.
void BM_FloorAddItem(benchmark::State& state)
{
    constexpr int nItems = 1000;
    QStringList listTexts;
    for (int n = 0; n < nItems; ++n)
    {
        listTexts += QStringLiteral("Alarm type %1").arg(n);
    }
    QWidget window;
    QComboBox combo(&window);
    window.show();
    QApplication::processEvents();
    for (auto _ : state)
    {
        combo.clear();
        for (const QString& strText : listTexts)
        {
            combo.addItem(strText);
        }
    }
}

void Sizes(benchmark::internal::Benchmark* pBenchmark)
{
    for (int nSounds : {100, 1000, 10000})
    {
        pBenchmark->Args({nSounds, 10});
    }
    for (int nCategories : {100, 1000})
    {
        pBenchmark->Args({100, nCategories});
    }
    pBenchmark->ArgNames({"sounds", "categories"})->Unit(benchmark::kMillisecond);
}

BENCHMARK(BM_FloorAddItem)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Load)->Apply(Sizes);
BENCHMARK(BM_Defaults)->Apply(Sizes);
BENCHMARK(BM_Save)->Apply(Sizes);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    if (!LoadCatalogue(folder.filePath("types.xml")))
    {
        std::fputs("bench-alarm: the catalogue cannot be made\n", stderr);
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
    {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
