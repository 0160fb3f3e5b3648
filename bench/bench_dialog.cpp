// How long the dialog takes from Init to its first picture, beside the floor: the same forms built bare, under the same
// style sheets, without icons, navigation, sections or records.
//
// Run it from a release build: build/release/bin/bench-dialog

#include "support/FakeHost.h"
#include "support/FakeSections.h"

#include "ui_CAlarmConfig.h"
#include "ui_CBasicConfig.h"
#include "ui_CCaptureConfig.h"
#include "ui_CLocalConfig.h"
#include "ui_CPlaybackConfig.h"
#include "ui_CRecordConfig.h"
#include "ui_CSecurityConfig.h"
#include "ui_CShortcutKeyConfig.h"
#include "ui_CSplitWndNumConfig.h"
#include "ui_CTvWallConfig.h"
#include "ui_CVideoConfig.h"

#include <LocalConfig/CLocalConfig.h>
#include <LocalConfig/interfaces/IPlaybackSection.h>
#include <LocalConfig/interfaces/IRecordSection.h>
#include <LocalConfig/interfaces/ISecuritySection.h>
#include <LocalConfig/interfaces/IShortcutKeySection.h>
#include <LocalConfig/interfaces/ISnapshotSection.h>
#include <LocalConfig/interfaces/ITvWallSection.h>
#include <LocalConfig/interfaces/IVideoSection.h>
#include <UICommonModule/Pxa.h>

#include <QApplication>
#include <QDir>
#include <QPixmapCache>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <vector>

using namespace LocalConfigLogical;

namespace
{

/// One section for each page.
struct SSections
{
    explicit SSections(CJournal& journal)
        : basic(journal)
        , video(journal)
        , playback(journal)
        , snapshot(journal)
        , record(journal)
        , alarm(journal)
        , shortcutKey(journal)
        , tvWall(journal)
        , security(journal)
    {}

    QMap<int, IConfigSection*> GetMap()
    {
        return {{SectionBasic, &basic},
                {SectionVideo, &video},
                {SectionPlayback, &playback},
                {SectionSnapshot, &snapshot},
                {SectionRecord, &record},
                {SectionAlarm, &alarm},
                {SectionShortcutKey, &shortcutKey},
                {SectionTvWall, &tvWall},
                {SectionSecurity, &security}};
    }

    CFakeBasicSection basic;
    CFakeSection<IVideoSection, VideoConfigInfo> video;
    CFakeSection<IPlaybackSection, PlaybackConfigInfo> playback;
    CFakeSection<ISnapshotSection, SnapshotConfigInfo> snapshot;
    CFakeSection<IRecordSection, RecordConfigInfo> record;
    CFakeAlarmSection alarm;
    CFakeSection<IShortcutKeySection, ShortcutKeyConfigInfo> shortcutKey;
    CFakeSection<ITvWallSection, TvWallConfigInfo> tvWall;
    CFakeSection<ISecuritySection, SecurityConfigInfo> security;
};

void PaintOnce(QWidget& dialog)
{
    dialog.show();
    QApplication::processEvents();
    benchmark::DoNotOptimize(dialog.grab());
}

void BM_DialogInitAndFirstShow(benchmark::State& state)
{
    bool bShown = true;
    for (auto _ : state)
    {
        state.PauseTiming();
        QPixmapCache::clear();
        SFakeHost host;
        SSections sections(host.journal);
        host.localConfig.m_mapSections = sections.GetMap();
        auto pDialog = std::make_unique<LocalConfig::CLocalConfig>(nullptr);
        state.ResumeTiming();

        pDialog->Init(&host.localConfig, &host.userManager);
        PaintOnce(*pDialog);

        state.PauseTiming();
        bShown = bShown && pDialog->findChild<QWidget*>("m_pTvWall")->isVisible();
        pDialog->hide();
        pDialog->UnInitUI();
        pDialog.reset();
        state.ResumeTiming();
    }
    if (!bShown)
    {
        state.SkipWithError("a page was not shown");
    }
}

QString ReadSheet(const char* pszFile)
{
    QString strSheet;
    Pxa::loadStyleSheet(Pxa::GetSkinPath("LocalConfig", QString::fromLatin1(pszFile)), strSheet);
    return strSheet;
}

template <class Form>
QWidget* BuildBare(QWidget* pBox)
{
    auto* pPage = new QWidget(pBox);
    Form form;
    form.setupUi(pPage);
    pBox->layout()->addWidget(pPage);
    return pPage;
}

/// The picker stays hidden, but Qt polishes it with the page it lies on.
void BuildBarePicker(QWidget* pPage, const QString& strSheet)
{
    auto* pPicker = new QWidget(pPage);
    Ui::CSplitWndNumConfig form;
    form.setupUi(pPicker);
    pPicker->setStyleSheet(strSheet);
    pPicker->hide();
}

/// The frame is there before the clock starts, as with the dialog: only what Init and the first show do is compared.
void BM_BareFormsFirstShow(benchmark::State& state)
{
    const QString strDialogSheet = ReadSheet("CLocalConfig.qss");
    const QString strPickerSheet = ReadSheet("CSplitWndNumConfig.qss");
    const QString strAlarmSheet = ReadSheet("CAlarmConfig.qss");
    const QString strKeySheet = ReadSheet("CShortcutKeyConfig.qss");
    for (auto _ : state)
    {
        state.PauseTiming();
        QPixmapCache::clear();
        auto pDialog = std::make_unique<KVGUI::KvCustomDialog>(
            KVGUI::KvCustomDialog::Ok | KVGUI::KvCustomDialog::Other | KVGUI::KvCustomDialog::Cancel, nullptr, 1);
        pDialog->setObjectName("CLocalConfig");
        pDialog->setStyleSheet(strDialogSheet);
        Ui::CLocalConfig shell;
        shell.setupUi(pDialog->GetCentralWidget());
        state.ResumeTiming();

        BuildBare<Ui::CBasicConfig>(shell.m_gBBasic);
        BuildBarePicker(BuildBare<Ui::CVideoConfig>(shell.m_gBVideo), strPickerSheet);
        BuildBare<Ui::CPlaybackConfig>(shell.m_gBPlayback);
        BuildBare<Ui::CCaptureConfig>(shell.m_gBCapture);
        BuildBare<Ui::CRecordConfig>(shell.m_gBRecord);
        BuildBare<Ui::CAlarmConfig>(shell.m_gBAlarm)->setStyleSheet(strAlarmSheet);
        BuildBare<Ui::CTvWallConfig>(shell.m_gBTvwall);
        BuildBare<Ui::CSecurityConfig>(shell.m_gBSecurity);
        BuildBare<Ui::CShortcutKeyConfig>(shell.m_gShortcutKey)->setStyleSheet(strKeySheet);
        PaintOnce(*pDialog);

        state.PauseTiming();
        pDialog.reset();
        state.ResumeTiming();
    }
}

BENCHMARK(BM_BareFormsFirstShow)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DialogInitAndFirstShow)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    QString strSheet;
    if (Pxa::loadStyleSheet(Pxa::GetSkinPath("public", "KvGui.qss"), strSheet))
    {
        application.setStyleSheet(strSheet);
    }
    // By turns and more than once, so that neither of the two meets a fresher heap than the other.
    std::vector<char*> listArguments(argv, argv + argc);
    char arrDefaults[][48] = {"--benchmark_enable_random_interleaving", "--benchmark_repetitions=9",
                              "--benchmark_report_aggregates_only"};
    for (char* pszDefault : arrDefaults)
    {
        listArguments.insert(listArguments.begin() + 1, pszDefault);
    }
    argc = int(listArguments.size());
    listArguments.push_back(nullptr);
    argv = listArguments.data();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
    {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
