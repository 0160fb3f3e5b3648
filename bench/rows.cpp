// What the dialog costs, row by row, beside its floors; ./bench/run runs it. docs/performance.md explains the rows.
//
// bench-rows LIMITS [--quick] [ROW...] prints the table and fails where a row is worse than LIMITS by more than 3 per
// cent. bench-rows --counts tells whether the processor counts; bench-rows --start shows one dialog and ends,
// --start-peer CONTENTS one of the peer.

#include "Counter.h"
#include "Filled.h"
#include "Subjects.h"

#include <UICommonModule/Pxa.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDataStream>
#include <QDialogButtonBox>
#include <QDir>
#include <QKeyEvent>
#include <QListView>
#include <QPixmapCache>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

#include <malloc.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>

namespace
{

constexpr int g_nTextSize = 13; // pixels; the client's
constexpr int g_nRounds = 40;
constexpr int g_nSounds = 10000;
constexpr double g_dTolerance = 1.03;

int g_nFlushes = 0;

} // namespace

// In the place of the system's, which is asked all the same.
extern "C" __attribute__((visibility("default"))) int fsync(int nHandle)
{
    ++g_nFlushes;
    return int(syscall(SYS_fsync, nHandle));
}

extern "C" __attribute__((visibility("default"))) int fdatasync(int nHandle)
{
    ++g_nFlushes;
    return int(syscall(SYS_fdatasync, nHandle));
}

namespace
{

/// Tells whether a dialog's contents have been painted.
class CPaintWatch : public QObject
{
public:
    explicit CPaintWatch(QDialog& dialog)
    {
        auto* pArea = dialog.findChild<QScrollArea*>("scrollArea"); // which the peer does without
        (pArea ? pArea->widget() : &dialog)->installEventFilter(this);
    }

    bool eventFilter(QObject* /*pWatched*/, QEvent* pEvent) override
    {
        m_bPainted = m_bPainted || pEvent->type() == QEvent::Paint;
        return false;
    }

    bool m_bPainted = false;
};

void Show(QDialog& dialog)
{
    CPaintWatch watch(dialog);
    dialog.show();
    QApplication::processEvents();
    if (!watch.m_bPainted)
    {
        qFatal("the dialog has not been painted");
    }
}

std::unique_ptr<QDialog> MakeAndShow(Subject subject, CHost& host)
{
    std::unique_ptr<QDialog> pDialog = subject(host);
    Show(*pDialog);
    return pDialog;
}

void Click(QAbstractButton* pButton)
{
    pButton->click();
    QApplication::processEvents();
}

QAbstractButton* FindButton(const QDialog& dialog, const char* pszName)
{
    return dialog.findChild<QAbstractButton*>(QString::fromLatin1(pszName));
}

/// The host and the counter of all rows.
struct SBench
{
    CHost& Filled()
    {
        if (!pFilled)
        {
            pFilled = std::make_unique<CHost>(FilledSettings());
        }
        return *pFilled;
    }

    CCounter counter;
    std::unique_ptr<CHost> pFilled;
    std::string strProgram;
};

using Sample = std::function<double()>;

// --- Samples

double FirstShow(SBench& bench, CHost& host, Subject subject)
{
    QPixmapCache::clear();
    std::unique_ptr<QDialog> pDialog;
    return bench.counter.Count([&] { pDialog = MakeAndShow(subject, host); });
}

double SecondShow(SBench& bench, Subject subject)
{
    const std::unique_ptr<QDialog> pDialog = MakeAndShow(subject, bench.Filled());
    pDialog->hide();
    QApplication::processEvents();
    return bench.counter.Count([&] { Show(*pDialog); });
}

/// In kilobytes.
double Heap(SBench& bench, Subject subject)
{
    constexpr double dKilo = 1024;
    const auto used = [] {
        const auto info = mallinfo2();
        return double(info.uordblks + info.hblkhd);
    };
    QPixmapCache::clear();
    bench.Filled();
    const double dBefore = used();
    const std::unique_ptr<QDialog> pDialog = MakeAndShow(subject, bench.Filled());
    return (used() - dBefore) / dKilo;
}

/// To the painted dialog; with it go the storing of the settings that are shown, and the end.
double ProcessStart(SBench& bench)
{
    return bench.counter.CountProcess({bench.strProgram, "--start"});
}

/// Likewise, and what it shows is read.
double ProcessStartPeer(SBench& bench)
{
    const QString strContents = bench.Filled().GetPath("contents");
    QFile file(strContents);
    QDataStream stream(&file);
    if (!file.open(QIODevice::WriteOnly) || (stream << bench.Filled().GetContents()).status() != QDataStream::Ok)
    {
        qFatal("the contents cannot be written");
    }
    file.close();
    return bench.counter.CountProcess({bench.strProgram, "--start-peer", strContents.toStdString()});
}

double ReloadAndHide(SBench& bench)
{
    const std::unique_ptr<QDialog> pDialog = MakeAndShow(&MakeProduct, bench.Filled());
    QAbstractButton* pCancel = FindButton(*pDialog, "btnCancel");
    return bench.counter.Count([&] { Click(pCancel); });
}

double ReloadAndHidePeer(SBench& bench)
{
    const std::unique_ptr<QDialog> pDialog = MakeAndShow(&MakePeer, bench.Filled());
    return bench.counter.Count([&] {
        SPeer::Instance().pReload(pDialog.get());
        pDialog->hide();
        QApplication::processEvents();
    });
}

double DefaultsPeer(SBench& bench)
{
    const std::unique_ptr<QDialog> pDialog = MakeAndShow(&MakePeer, bench.Filled());
    auto* pButtons = pDialog->findChild<QDialogButtonBox*>();
    return bench.counter.Count([&] {
        pButtons->button(QDialogButtonBox::RestoreDefaults)->click();
        QApplication::processEvents();
    });
}

double SaveToDiskPeer(SBench& bench)
{
    const std::unique_ptr<QDialog> pDialog = MakeAndShow(&MakePeer, bench.Filled());
    SPeer::Instance().pSave(pDialog.get());
    FindButton(*pDialog, "kcfg_timeChkBox")->toggle();
    return bench.counter.Count([&] { SPeer::Instance().pSave(pDialog.get()); });
}

double Defaults(SBench& bench)
{
    const std::unique_ptr<QDialog> pDialog = MakeAndShow(&MakeProduct, bench.Filled());
    QAbstractButton* pDefault = FindButton(*pDialog, "btnOther");
    return bench.counter.Count([&] { Click(pDefault); });
}

/// Every page into its record, and the document to the disk, too.
double Save(SBench& bench, CHost& host, bool bToDisk)
{
    const std::unique_ptr<QDialog> pDialog = MakeAndShow(&MakeProduct, host);
    QAbstractButton* pSave = FindButton(*pDialog, "btnOk");
    Click(pSave);
    host.SetToDisk(bToDisk);
    FindButton(*pDialog, "timeChkBox")->toggle();
    g_nFlushes = 0;
    const double dCount = bench.counter.Count([&] { Click(pSave); });
    host.SetToDisk(false);
    return dCount;
}

double Flushes(SBench& bench)
{
    Save(bench, bench.Filled(), true);
    return g_nFlushes;
}

double GrownFirstShow(SBench& bench, int nSounds)
{
    MakeCatalogue(nSounds);
    CHost host(GrownSettings(nSounds, 0));
    return FirstShow(bench, host, &MakeProduct);
}

double GrownSave(SBench& bench, int nSounds)
{
    MakeCatalogue(nSounds);
    CHost host(GrownSettings(nSounds, nSounds));
    return Save(bench, host, true);
}

/// The list of alarm types, all of one category, opened for the first time.
double OpenList(SBench& bench, int nSounds)
{
    MakeCatalogue(nSounds, nSounds);
    CHost host(GrownSettings(nSounds, 0));
    const std::unique_ptr<QDialog> pDialog = MakeAndShow(&MakeProduct, host);
    auto* pBox = pDialog->findChild<QComboBox*>("cbxAlarmTypeForSound");
    return bench.counter.Count([&] {
        pBox->showPopup();
        QApplication::processEvents();
    });
}

/// A page down and a step of the wheel in that list.
double Scroll(SBench& bench, int nSounds)
{
    MakeCatalogue(nSounds, nSounds);
    CHost host(GrownSettings(nSounds, 0));
    const std::unique_ptr<QDialog> pDialog = MakeAndShow(&MakeProduct, host);
    pDialog->findChild<QComboBox*>("cbxAlarmTypeForSound")->showPopup();
    auto* pList = pDialog->findChild<QListView*>("subItems");
    pList->setCurrentIndex(pList->model()->index(nSounds / 2, 0));
    QApplication::processEvents();
    const int nBefore = pList->verticalScrollBar()->value();
    const double dCount = bench.counter.Count([pList] {
        QKeyEvent pageDown(QEvent::KeyPress, Qt::Key_PageDown, Qt::NoModifier);
        QApplication::sendEvent(pList, &pageDown);
        QApplication::processEvents();
        QWheelEvent wheel({1, 1}, pList->viewport()->mapToGlobal({1, 1}), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(pList->viewport(), &wheel);
        QApplication::processEvents();
    });
    if (pList->verticalScrollBar()->value() == nBefore || pList->currentIndex().row() == nSounds / 2)
    {
        qFatal("the list has not been scrolled");
    }
    return dCount;
}

// --- Rows

struct SRow
{
    const char* pszName;
    const char* pszUnit; ///< null: the counter's
    const char* pszBase; ///< what it is compared with; null: nothing
    Sample product;
    Sample base;
    bool bQuick;
};

std::vector<SRow> MakeRows(SBench& bench)
{
    const auto firstShow = [&bench](Subject subject) {
        return [&bench, subject] { return FirstShow(bench, bench.Filled(), subject); };
    };
    const auto secondShow = [&bench](Subject subject) {
        return [&bench, subject] { return SecondShow(bench, subject); };
    };
    const auto heap = [&bench](Subject subject) { return [&bench, subject] { return Heap(bench, subject); }; };
    const auto grownShow = [&bench](int nSounds) {
        return [&bench, nSounds] { return GrownFirstShow(bench, nSounds); };
    };
    const auto grownSave = [&bench](int nSounds) { return [&bench, nSounds] { return GrownSave(bench, nSounds); }; };
    std::vector<SRow> listRows = {
        {"first-show", nullptr, "plain", firstShow(&MakeProduct), firstShow(&MakePlain), true},
        {"first-show-bare", nullptr, "bare", firstShow(&MakeProduct), firstShow(&MakeBare), false},
        {"second-show", nullptr, "plain", secondShow(&MakeProduct), secondShow(&MakePlain), true},
        {"heap", "kB", "plain", heap(&MakeProduct), heap(&MakePlain), true},
        {"process-start", nullptr, nullptr, [&bench] { return ProcessStart(bench); }, {}, false},
        {"reload-and-hide", nullptr, nullptr, [&bench] { return ReloadAndHide(bench); }, {}, true},
        {"defaults", nullptr, nullptr, [&bench] { return Defaults(bench); }, {}, true},
        {"save-in-memory", nullptr, nullptr, [&bench] { return Save(bench, bench.Filled(), false); }, {}, true},
        {"save-to-disk", nullptr, nullptr, [&bench] { return Save(bench, bench.Filled(), true); }, {}, true},
        {"save-flushes", "flushes", nullptr, [&bench] { return Flushes(bench); }, {}, true},
        {"first-show-10000-sounds", nullptr, "with 10", grownShow(g_nSounds), grownShow(10), false},
        {"open-list-100000-sounds", nullptr, "with 1000", [&bench] { return OpenList(bench, 10 * g_nSounds); },
         [&bench] { return OpenList(bench, g_nSounds / 10); }, false},
        {"scroll-100000-sounds", nullptr, "with 1000", [&bench] { return Scroll(bench, 10 * g_nSounds); },
         [&bench] { return Scroll(bench, g_nSounds / 10); }, false},
        {"save-10000-sounds", nullptr, "with 1000", grownSave(g_nSounds), grownSave(g_nSounds / 10), false},
    };
    if (SPeer::IsThere())
    {
        listRows.insert(listRows.end(),
                        {{"first-show-peer", nullptr, "peer", firstShow(&MakeProduct), firstShow(&MakePeer), false},
                         {"second-show-peer", nullptr, "peer", secondShow(&MakeProduct), secondShow(&MakePeer), false},
                         {"process-start-peer", nullptr, "peer", [&bench] { return ProcessStart(bench); },
                          [&bench] { return ProcessStartPeer(bench); }, false},
                         {"heap-peer", "kB", "peer", heap(&MakeProduct), heap(&MakePeer), false},
                         {"reload-and-hide-peer", nullptr, "peer", [&bench] { return ReloadAndHide(bench); },
                          [&bench] { return ReloadAndHidePeer(bench); }, false},
                         {"defaults-peer", nullptr, "peer", [&bench] { return Defaults(bench); },
                          [&bench] { return DefaultsPeer(bench); }, false},
                         {"save-to-disk-peer", nullptr, "peer", [&bench] { return Save(bench, bench.Filled(), true); },
                          [&bench] { return SaveToDiskPeer(bench); }, false}});
    }
    return listRows;
}

double Median(std::vector<double> listNumbers)
{
    std::nth_element(listNumbers.begin(), listNumbers.begin() + long(listNumbers.size() / 2), listNumbers.end());
    return listNumbers[listNumbers.size() / 2];
}

struct SResult
{
    double dProduct;
    double dBase;
    double dRatio; ///< the median of the rounds' own ratios
};

/// By turns, so that neither of the two always meets the fresher heap.
SResult Measure(const SRow& row, int nRounds)
{
    std::vector<double> listProduct;
    std::vector<double> listBase;
    std::vector<double> listRatios;
    row.product(); // what is made only once
    if (row.base)
    {
        row.base();
    }
    for (int nRound = 0; nRound < nRounds; ++nRound)
    {
        double arrCounts[2] = {0, 1};
        for (int nTurn = 0; nTurn < 2; ++nTurn)
        {
            const int nSubject = (nRound + nTurn) % 2;
            const Sample& sample = nSubject == 0 ? row.product : row.base;
            if (sample)
            {
                arrCounts[nSubject] = sample();
            }
        }
        listProduct.push_back(arrCounts[0]);
        listBase.push_back(arrCounts[1]);
        listRatios.push_back(arrCounts[0] / arrCounts[1]);
    }
    return {Median(listProduct), Median(listBase), Median(listRatios)};
}

// --- The table

struct SLimit
{
    std::string strGoal;
    double dRecorded = 0;
};

/// Lines of a row's name, its goal ("-" without one) and the ratio, or the count of a row without one, that it had.
std::map<std::string, SLimit> ReadLimits(const char* pszFile)
{
    std::map<std::string, SLimit> mapLimits;
    std::ifstream file(pszFile);
    for (std::string strLine; std::getline(file, strLine);)
    {
        std::istringstream line(strLine);
        std::string strName;
        SLimit limit;
        if (line >> strName >> limit.strGoal >> limit.dRecorded && strName[0] != '#')
        {
            mapLimits[strName] = limit;
        }
    }
    return mapLimits;
}

/// \return whether the row is no worse than it was
bool Print(const SRow& row, const SResult& result, const SLimit& limit, const CCounter& counter)
{
    const double dFigure = row.pszBase ? result.dRatio : result.dProduct;
    // Times say too little to refuse a change, and what stands alone was recorded with callgrind, which counts some
    // instructions differently from a processor.
    const bool bComparable =
        row.pszUnit || counter.GetKind() == CCounter::Callgrind || (row.pszBase && counter.GetKind() != CCounter::Time);
    const bool bWorse = bComparable && dFigure > limit.dRecorded * g_dTolerance;
    const bool bGoal = limit.strGoal == "-" || dFigure <= std::strtod(limit.strGoal.c_str(), nullptr);
    const std::string strRatio = row.pszBase ? QString::number(result.dRatio, 'f', 2).toStdString() : "-";
    std::printf("%-25s %10.2f  %-10s %6s  %6s  %-5s %9.3f  %s\n", row.pszName, result.dProduct,
                row.pszBase ? row.pszBase : "-", strRatio.c_str(), limit.strGoal.c_str(),
                limit.strGoal == "-" ? "-" : (bGoal ? "holds" : "no"), limit.dRecorded, bWorse ? "WORSE" : "");
    std::fflush(stdout);
    return !bWorse;
}

int PrintTable(SBench& bench, const QStringList& listArguments, const std::map<std::string, SLimit>& mapLimits)
{
    const bool bQuick = listArguments.contains("--quick");
    const QStringList listNames = listArguments.mid(1).filter(QRegularExpression("^[^-]"));
    std::printf("Counted by %s; %s unless another unit stands there.\n\n", bench.counter.GetSource(),
                bench.counter.GetUnit());
    std::printf("%-25s %10s  %-10s %6s  %6s  %-5s %9s\n", "row", "product", "against", "ratio", "goal", "", "recorded");
    bool bGood = true;
    for (const SRow& row : MakeRows(bench))
    {
        const auto limit = mapLimits.find(row.pszName);
        const bool bWanted = listNames.isEmpty() ? !bQuick || row.bQuick : listNames.contains(row.pszName);
        if (bWanted)
        {
            const SResult result = Measure(row, bench.counter.IsExact() ? 1 : g_nRounds);
            bGood =
                Print(row, result, limit == mapLimits.end() ? SLimit{"-", HUGE_VAL} : limit->second, bench.counter) &&
                bGood;
        }
    }
    return bGood ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "default.warning=false"); // what that platform cannot do
    QApplication application(argc, argv);
    QFont font = QApplication::font();
    font.setPixelSize(g_nTextSize);
    QApplication::setFont(font);
    const QStringList listArguments = application.arguments().mid(1);
    if (listArguments.isEmpty())
    {
        std::fputs("usage: bench-rows LIMITS [--quick] [ROW...]\n", stderr);
        return 2;
    }
    if (listArguments[0] == "--counts")
    {
        return CCounter().GetKind() == CCounter::Processor ? 0 : 1;
    }
    const std::map<std::string, SLimit> mapLimits = ReadLimits(qPrintable(listArguments[0]));
    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
    QString strSheet;
    if (Pxa::loadStyleSheet(Pxa::GetSkinPath("public", "KvGui.qss"), strSheet))
    {
        application.setStyleSheet(strSheet);
    }
    if (listArguments[0] == "--start")
    {
        CHost host(FilledSettings());
        MakeAndShow(&MakeProduct, host);
        return 0;
    }
    if (listArguments[0] == "--start-peer")
    {
        QFile file(listArguments.value(1));
        QDataStream stream(&file);
        CContents contents;
        if (!file.open(QIODevice::ReadOnly) || (stream >> contents).status() != QDataStream::Ok)
        {
            qFatal("there are no contents");
        }
        const QString strFile = folder.filePath("peerrc");
        const std::unique_ptr<QDialog> pDialog(SPeer::Instance().pMake(&contents, &strFile));
        Show(*pDialog);
        return 0;
    }
    SBench bench;
    bench.strProgram = QCoreApplication::applicationFilePath().toStdString();
    return PrintTable(bench, listArguments, mapLimits);
}
