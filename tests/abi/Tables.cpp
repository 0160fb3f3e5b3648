// What a host or a section object is compiled against and no symbol shows: the tables of the interfaces, the layout of
// the records, the sizes of the classes. The library is never run; abi.sh reads its debug information.

#include <KvGui/KvCheckBox.h>
#include <KvGui/KvComboBox.h>
#include <KvGui/KvCustomDialog.h>
#include <KvGui/KvDialog.h>
#include <KvGui/KvDir.h>
#include <KvGui/KvHorScrollBar.h>
#include <KvGui/KvLineEdit.h>
#include <KvGui/KvListWidget.h>
#include <KvGui/KvMessageBox.h>
#include <KvGui/KvMessageNotify.h>
#include <KvGui/KvPushButton.h>
#include <KvGui/KvRadioButton.h>
#include <KvGui/KvSpinBox.h>
#include <KvGui/KvTableView.h>
#include <KvGui/KvToolListView.h>
#include <KvGui/KvVerScrollBar.h>
#include <LocalConfig/CLocalConfig.h>
#include <LocalConfig/interfaces/IAlarmSection.h>
#include <LocalConfig/interfaces/IBasicSection.h>
#include <LocalConfig/interfaces/ILocalConfig.h>
#include <LocalConfig/interfaces/IPlaybackSection.h>
#include <LocalConfig/interfaces/IRecordSection.h>
#include <LocalConfig/interfaces/ISecuritySection.h>
#include <LocalConfig/interfaces/IShortcutKeySection.h>
#include <LocalConfig/interfaces/ISnapshotSection.h>
#include <LocalConfig/interfaces/ITvWallSection.h>
#include <LocalConfig/interfaces/IUserManager.h>
#include <LocalConfig/interfaces/IVideoSection.h>
#include <UICommonModule/CAlarmType.h>
#include <UICommonModule/CAlarmTypeCombox.h>
#include <UICommonModule/CAtomicFile.h>
#include <UICommonModule/CAudioOutput.h>
#include <UICommonModule/CErrorCode.h>
#include <UICommonModule/CFileLock.h>
#include <UICommonModule/CGlobalInfo.h>
#include <UICommonModule/CGrowingFile.h>
#include <UICommonModule/CLocalIniFile.h>
#include <UICommonModule/COutputFile.h>
#include <UICommonModule/CPathEdit.h>
#include <UICommonModule/CWaveFile.h>
#include <UICommonModule/Pxa.h>

using namespace LocalConfigLogical;
using namespace UserLogical;

struct SSizesOfLocalConfig
{
    char CLocalConfig[sizeof(LocalConfig::CLocalConfig)];
};

struct SSizesOfKvGui
{
    char KvCheckBox[sizeof(KVGUI::KvCheckBox)];
    char KvComboBox[sizeof(KVGUI::KvComboBox)];
    char KvCustomDialog[sizeof(KVGUI::KvCustomDialog)];
    char KvDialog[sizeof(KVGUI::KvDialog)];
    char KvDir[sizeof(KVGUI::KvDir)];
    char KvHorScrollBar[sizeof(KVGUI::KvHorScrollBar)];
    char KvLineEdit[sizeof(KVGUI::KvLineEdit)];
    char KvListWidget[sizeof(KVGUI::KvListWidget)];
    char KvMessageBox[sizeof(KVGUI::KvMessageBox)];
    char KvMessageNotify[sizeof(KVGUI::KvMessageNotify)];
    char KvPushButton[sizeof(KVGUI::KvPushButton)];
    char KvRadioButton[sizeof(KVGUI::KvRadioButton)];
    char KvSpinBox[sizeof(KVGUI::KvSpinBox)];
    char KvTableView[sizeof(KVGUI::KvTableView)];
    char KvToolListView[sizeof(KVGUI::KvToolListView)];
    char KvVerScrollBar[sizeof(KVGUI::KvVerScrollBar)];
};

struct SSizesOfUICommonModule
{
    char CAlarmType[sizeof(UICommonMdl::CAlarmType)];
    char CAlarmTypeCombox[sizeof(UICommonMdl::CAlarmTypeCombox)];
    char CAtomicFile[sizeof(UICommonMdl::CAtomicFile)];
    char CAudioOutput[sizeof(UICommonMdl::CAudioOutput)];
    char CErrorCode[sizeof(UICommonMdl::CErrorCode)];
    char CFileLock[sizeof(UICommonMdl::CFileLock)];
    char CGlobalInfo[sizeof(UICommonMdl::CGlobalInfo)];
    char CGrowingFile[sizeof(UICommonMdl::CGrowingFile)];
    char CLocalIniFile[sizeof(UICommonMdl::CLocalIniFile)];
    char COutputFile[sizeof(UICommonMdl::COutputFile)];
    char CPathEdit[sizeof(UICommonMdl::CPathEdit)];
    char CWaveFile[sizeof(UICommonMdl::CWaveFile)];
    char QCommon[sizeof(Pxa::QCommon)];
};

Q_DECL_EXPORT void Take(ILocalConfig&, IUserManager&, ILoginManager&, ILoginManagerObserver&, IUserRight&,
                        IBasicSection&, IVideoSection&, IPlaybackSection&, ISnapshotSection&, IRecordSection&,
                        IAlarmSection&, IShortcutKeySection&, ITvWallSection&, ISecuritySection&);
void Take(ILocalConfig&, IUserManager&, ILoginManager&, ILoginManagerObserver&, IUserRight&, IBasicSection&,
          IVideoSection&, IPlaybackSection&, ISnapshotSection&, IRecordSection&, IAlarmSection&, IShortcutKeySection&,
          ITvWallSection&, ISecuritySection&)
{}

Q_DECL_EXPORT void TakeSizes(SSizesOfLocalConfig&, SSizesOfKvGui&, SSizesOfUICommonModule&);
void TakeSizes(SSizesOfLocalConfig&, SSizesOfKvGui&, SSizesOfUICommonModule&)
{}
