#include "core/modMain.h"

#include "core/Settings.h"
#include "platform/Conversions.h"

namespace corvane {

modMain::modMain(corvane::Platform& platform)
    : Platform(platform), Ui(platform.Ui), Registry(platform.Registry, platform.System) {}

modMain::~modMain() = default;

void modMain::InitGlobals() {
  ConfigDbPath = Setting("ConfigMDBPath");
  CatalogLink = Setting("CatalogHyperlink");
  UpgradeLink = Setting("UpgradeHyperlink");
  IsNewLog = false;
  ColumnSortState.fill(false);
}

std::string modMain::Setting(const std::string& name) const {
  return Registry.DeNullString(Registry.GetKeyValue(SettingsKey, name));
}

double modMain::SettingNumber(const std::string& name) const { return Val(Registry.GetKeyValue(SettingsKey, name)); }

void modMain::SaveSetting(const std::string& name, const std::string& value) {
  Registry.SetKeyValue(SettingsKey, name, value, registry::String);
}

}  // namespace corvane
