// How long the dialog takes from Init to its first picture, beside the floor: the same forms built bare, under the same
// style sheets, without icons, navigation, sections or records.
//
// Run it from a release build: build/release/bin/bench-dialog

#include "support/FakeHost.h"
#include "support/FakeSections.h"

#include "ui_CBasicConfig.h"
#include "ui_CLocalConfig.h"

#include <LocalConfig/CLocalConfig.h>
#include <UICommonModule/Pxa.h>

#include <QApplication>
#include <QDir>
#include <QPixmapCache>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace
{

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
        CFakeBasicSection basic(host.journal);
        host.localConfig.m_mapSections.insert(LocalConfigLogical::SectionBasic, &basic);
        auto pDialog = std::make_unique<LocalConfig::CLocalConfig>(nullptr);
        state.ResumeTiming();

        pDialog->Init(&host.localConfig, &host.userManager);
        PaintOnce(*pDialog);

        state.PauseTiming();
        bShown = bShown && pDialog->findChild<QWidget*>("m_pBasic")->isVisible();
        pDialog->hide();
        pDialog->UnInitUI();
        pDialog.reset();
        state.ResumeTiming();
    }
    if (!bShown)
    {
        state.SkipWithError("the Basic page was not shown");
    }
}

/// The frame is there before the clock starts, as with the dialog: only what Init and the first show do is compared.
void BM_BareFormsFirstShow(benchmark::State& state)
{
    QString strDialogSheet;
    Pxa::loadStyleSheet(Pxa::GetSkinPath("LocalConfig", "CLocalConfig.qss"), strDialogSheet);
    for (auto _ : state)
    {
        state.PauseTiming();
        auto pDialog = std::make_unique<KVGUI::KvCustomDialog>(
            KVGUI::KvCustomDialog::Ok | KVGUI::KvCustomDialog::Other | KVGUI::KvCustomDialog::Cancel, nullptr, 1);
        pDialog->setObjectName("CLocalConfig");
        pDialog->setStyleSheet(strDialogSheet);
        Ui::CLocalConfig shell;
        shell.setupUi(pDialog->GetCentralWidget());
        state.ResumeTiming();

        auto* pPage = new QWidget(shell.m_gBBasic);
        Ui::CBasicConfig basic;
        basic.setupUi(pPage);
        shell.horizontalLayout_2->addWidget(pPage);
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
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
    {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
