#include "adapters/qt/FormRegistry.h"

#include "platform/RuntimeError.h"
#include "ui_frmAlarmExport.h"
#include "ui_frmAlarmGroups.h"
#include "ui_frmAlarmImport.h"
#include "ui_frmAlarmInformation.h"
#include "ui_frmAlarms.h"
#include "ui_frmBegin.h"
#include "ui_frmCVMain.h"
#include "ui_frmComputerEnum.h"
#include "ui_frmControlService.h"
#include "ui_frmCreateTable.h"
#include "ui_frmCustomDomainManager.h"
#include "ui_frmCustomNotifications.h"
#include "ui_frmDomainChooser.h"
#include "ui_frmLogEdit.h"
#include "ui_frmLogView.h"
#include "ui_frmNotifications.h"
#include "ui_frmNotificationsTest.h"
#include "ui_frmPriorityBuilder.h"
#include "ui_frmServiceAccount.h"
#include "ui_frmStartup.h"
#include "ui_frmSyslogDevice.h"

namespace corvane::qt {
namespace {

template <class Placement>
void Place(QWidget& content) {
  Placement().setupUi(&content);
}

}  // namespace

FormRegistry FormRegistry::Console() {
  FormRegistry forms;
  forms.Add("frmAlarmExport", {Place<Ui::frmAlarmExport>});
  forms.Add("frmAlarmGroups", {Place<Ui::frmAlarmGroups>});
  forms.Add("frmAlarmImport", {Place<Ui::frmAlarmImport>});
  forms.Add("frmAlarmInformation", {Place<Ui::frmAlarmInformation>});
  forms.Add("frmAlarms", {Place<Ui::frmAlarms>});
  forms.Add("frmBegin", {Place<Ui::frmBegin>});
  forms.Add("frmCVMain", {Place<Ui::frmCVMain>});
  forms.Add("frmComputerEnum", {Place<Ui::frmComputerEnum>});
  forms.Add("frmControlService", {Place<Ui::frmControlService>});
  forms.Add("frmCreateTable", {Place<Ui::frmCreateTable>});
  forms.Add("frmCustomDomainManager", {Place<Ui::frmCustomDomainManager>});
  forms.Add("frmCustomNotifications", {Place<Ui::frmCustomNotifications>});
  forms.Add("frmDomainChooser", {Place<Ui::frmDomainChooser>});
  forms.Add("frmLogEdit", {Place<Ui::frmLogEdit>});
  forms.Add("frmLogView", {Place<Ui::frmLogView>});
  forms.Add("frmNotifications", {Place<Ui::frmNotifications>});
  forms.Add("frmNotificationsTest", {Place<Ui::frmNotificationsTest>});
  forms.Add("frmPriorityBuilder", {Place<Ui::frmPriorityBuilder>});
  forms.Add("frmServiceAccount", {Place<Ui::frmServiceAccount>});
  forms.Add("frmStartup", {Place<Ui::frmStartup>, WindowFrame::None});
  forms.Add("frmSyslogDevice", {Place<Ui::frmSyslogDevice>});
  return forms;
}

const FormEntry& FormRegistry::At(std::string_view name) const {
  const auto found = entries_.find(name);
  if (found == entries_.end())
    throw RuntimeError(errors::ElementNotFound, "No placement for the form " + std::string(name));
  return found->second;
}

std::vector<std::string> FormRegistry::Names() const {
  std::vector<std::string> names;
  for (const auto& entry : entries_) names.push_back(entry.first);
  return names;
}

}  // namespace corvane::qt
