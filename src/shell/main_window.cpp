#include "shell/main_window.h"

#include <algorithm>
#include <string>

#include "link/send.h"
#include "link/transfer.h"
#include "platform/list_items.h"
#include "platform/machine.h"
#include "platform/runtime_error.h"
#include "session/language.h"
#include "session/resets.h"
#include "shell/directory_picker.h"
#include "shell/directory_screen.h"
#include "shell/editors.h"
#include "shell/manual.h"
#include "shell/menus.h"
#include "shell/open_dialog.h"
#include "shell/save_dialog.h"
#include "text/windows1252.h"

namespace bkconf {

MainWindowScreen::MainWindowScreen()
    : Screen("MainWindow"),
      bestand(*this, nullptr, "bestand"),
      nieuw(*this, &bestand, "nieuw"),
      lijn1(*this, &bestand, "lijn1"),
      openen(*this, &bestand, "openen"),
      lijn2(*this, &bestand, "lijn2"),
      Bewaren(*this, &bestand, "Bewaren"),
      Bewaren_als(*this, &bestand, "Bewaren_als"),
      lijn3(*this, &bestand, "lijn3"),
      Einde(*this, &bestand, "Einde"),
      taal(*this, nullptr, "taal"),
      ned(*this, &taal, "ned"),
      frans(*this, &taal, "frans"),
      settings(*this, nullptr, "settings"),
      poort(*this, &settings, "poort"),
      p1(*this, &poort, "p1"),
      p2(*this, &poort, "p2"),
      p3(*this, &poort, "p3"),
      p4(*this, &poort, "p4"),
      p5(*this, &poort, "p5"),
      p6(*this, &poort, "p6"),
      p7(*this, &poort, "p7"),
      p8(*this, &poort, "p8"),
      lijn4(*this, &settings, "lijn4"),
      instellingen(*this, &settings, "instellingen"),
      Info(*this, nullptr, "Info"),
      Web(*this, &Info, "Web"),
      moduleListLabel(*this, "moduleListLabel"),
      moduleList(*this, "moduleList"),
      pictureGroup(*this, "pictureGroup"),
      picture(*this, "picture"),
      moduleCaption(*this, "moduleCaption"),
      moreInfo(*this, "moreInfo"),
      infoInductive(*this, "infoInductive"),
      infoCapacitive(*this, "infoCapacitive"),
      infoAnalogue(*this, "infoAnalogue"),
      actionGroup(*this, "actionGroup"),
      connect(*this, "connect"),
      send(*this, "send"),
      upgrade(*this, "upgrade"),
      general(*this, DataGroup::General, "general"),
      displayTemperature(*this, DataGroup::DisplayTemperature, "displayTemperature"),
      alarm(*this, DataGroup::Alarm, "alarm"),
      special(*this, DataGroup::Special, "special"),
      roomCountLabel(*this, "roomCountLabel"),
      roomCount(*this, "roomCount"),
      toleranceLabel(*this, "toleranceLabel"),
      tolerance(*this, "tolerance"),
      detectorCountLabel(*this, "detectorCountLabel"),
      detectorCount(*this, "detectorCount"),
      modulePage(*this),
      manual(*this, "manual"),
      closeManual(*this, "closeManual"),
      status(*this, "status"),
      transferBar(*this, "transferBar") {
  for (const ActionButtonRow& row : ActionButtons) {
    actionButtons.push_back(std::make_unique<ButtonField>(*this, row.name));
  }
}

DataGroupFields::DataGroupFields(Screen& screen, DataGroup dataGroup, std::string_view prefix)
    : group(dataGroup),
      frame(screen, std::string(prefix) + "Group"),
      addressLabel(screen, std::string(prefix) + "AddressLabel"),
      address(screen, std::string(prefix) + "Address"),
      version(screen, std::string(prefix) + "Version") {}

DataGroupFields& MainWindowScreen::Group(DataGroup group) {
  switch (group) {
    case DataGroup::General:
      return general;
    case DataGroup::DisplayTemperature:
      return displayTemperature;
    case DataGroup::Alarm:
      return alarm;
    case DataGroup::Special:
      return special;
  }
  return general;
}

namespace {

constexpr auto DataGroups = std::to_array<DataGroup>(
    {DataGroup::General, DataGroup::DisplayTemperature, DataGroup::Alarm, DataGroup::Special});

/// A list of the main window that shows one cell of the image, stores a pick at once, and puts the
/// stored value back when something else is typed.
struct CellField {
  LabelField* label;
  ListField* list;
  KindSet kinds;
  CellPlace cell;
  int lowest;  ///< of the numbers offered
  int highest;
  TextId caption;
  Cell* dirty;  ///< the flag that a pick sets, or null
};

/// The lists beside the address, each for one kind.
const std::vector<CellField>& CellFields() {
  static const std::vector<CellField> fields = {
      {&MainWindow.roomCountLabel,
       &MainWindow.roomCount,
       {TemperatureKind},
       {&TempHeader, 1},
       1,
       MostRooms,
       TextId::RoomCount,
       &TempHeaderDirty},
      {&MainWindow.toleranceLabel,
       &MainWindow.tolerance,
       {TemperatureKind},
       {&TempHeader, 2},
       2,
       255,
       TextId::Tolerance,
       &TempHeaderDirty},
      {&MainWindow.detectorCountLabel,
       &MainWindow.detectorCount,
       {AlarmKind},
       DetectorsInUse,
       1,
       MostDetectors,
       TextId::DetectorCount,
       nullptr},
  };
  return fields;
}

bool HasAddress(const ModuleKind* kind) {
  return kind == nullptr || kind->address.table != nullptr;
}

void ShowDataGroup(DataGroup group) {
  for (const DataGroup each : DataGroups) {
    MainWindow.Group(each).frame.visible = each == group;
  }
}

bool IsShown(const ActionButtonRow& row, const ModuleKind* kind, Origin origin) {
  const bool testable = origin == Origin::Read || !row.testsModule;
  return kind != nullptr && row.kinds.Contains(kind->code) && testable;
}

/// Buttons and lists of other kinds hide; those of the kind show. Null hides all.
void ShowFieldsOf(const ModuleKind* kind, Origin origin) {
  for (std::size_t i = 0; i < ActionButtons.size(); ++i) {
    const ActionButtonRow& row = ActionButtons[i];
    ButtonField& button = *MainWindow.actionButtons[i];
    button.visible = IsShown(row, kind, origin);
    Show(button.caption,
         origin == Origin::File ? row.captionAfterOpen.value_or(row.caption) : row.caption);
  }
  for (const CellField& field : CellFields()) {
    const bool shown = kind != nullptr && field.kinds.Contains(kind->code);
    field.label->visible = field.list->visible = shown;
  }
  for (const DataGroup group : DataGroups) {
    DataGroupFields& fields = MainWindow.Group(group);
    fields.address.visible = fields.addressLabel.visible = HasAddress(kind);
  }
}

void ClearModuleFields() {
  for (const DataGroup group : DataGroups) {
    DataGroupFields& fields = MainWindow.Group(group);
    fields.address.Clear();
    fields.version.caption.clear();
    fields.version.visible = false;
  }
  for (const CellField& field : CellFields()) field.list->Clear();
}

/// Picture, captions and info buttons of the model that the selection list shows. The image is not
/// touched: what kind it takes is settled by the module.
void ShowModel() {
  const Model* model = FindModel(MainWindow.moduleList.Text());
  const bool several = model != nullptr && model->HasSeveralManuals();
  MainWindow.pictureGroup.visible = model != nullptr;
  MainWindow.moreInfo.visible = model != nullptr && !several;
  for (ButtonField* info :
       {&MainWindow.infoInductive, &MainWindow.infoCapacitive, &MainWindow.infoAnalogue}) {
    info->visible = several;
  }
  if (model == nullptr) {
    MainWindow.moduleCaption.caption.clear();
    return;
  }
  MainWindow.picture.file = model->picture;
  Show(MainWindow.moduleCaption.caption, model->caption);
  Show(MainWindow.pictureGroup.caption, model->groupCaption);
}

void ShowModelOf(const ModuleKind& kind) {
  MainWindow.moduleList.Show(kind.model);
  ShowModel();
}

void ShowGroupOf(const ModuleKind& kind, Origin origin) {
  ShowDataGroup(kind.group);
  ShowFieldsOf(&kind, origin);
}

/// The letter that the image holds, as its character.
void ShowAddress(ListField& list) {
  list.Show(CharacterOf(CellAt(ActiveKind()->address).Whole()));
}

void ShowAddressAndCells() {
  const ModuleKind* kind = ActiveKind();
  if (HasAddress(kind)) ShowAddress(MainWindow.Group(kind->group).address);
  for (const CellField& field : CellFields()) {
    if (field.kinds.Contains(kind->code)) field.list->Show(CellAt(field.cell).Text());
  }
}

void ShowModuleCells() {
  ShowAddressAndCells();
  const ModuleKind* kind = ActiveKind();
  DataGroupFields& fields = MainWindow.Group(kind->group);
  fields.version.caption = std::string(Text(TextId::Version)) + VersionText(CellAt(kind->version));
  fields.version.visible = true;
}

void EnableMenus(bool enabled) {
  for (MenuField* menu :
       {&MainWindow.bestand, &MainWindow.taal, &MainWindow.settings, &MainWindow.Info}) {
    menu->enabled = enabled;
  }
  MainWindow.moduleList.enabled = enabled;
}

/// The info buttons go with them: a manual over the window would free the selection list in the
/// middle of a transfer.
void EnableActions(bool enabled) {
  const bool usable = enabled && ActiveKind() != nullptr;
  for (const auto& button : MainWindow.actionButtons) button->enabled = usable;
  EnableModulePage(usable);
  for (ButtonField* info : {&MainWindow.moreInfo, &MainWindow.infoInductive,
                            &MainWindow.infoCapacitive, &MainWindow.infoAnalogue}) {
    info->enabled = enabled;
  }
}

void EnableModuleFields(bool enabled) {
  const bool usable = enabled && ActiveKind() != nullptr;
  for (const DataGroup group : DataGroups) {
    MainWindow.Group(group).address.enabled =
        usable && HasAddress(ActiveKind()) && ActiveKind()->group == group;
  }
  for (const CellField& field : CellFields()) {
    field.list->enabled = usable && field.kinds.Contains(ActiveCode());
  }
}

/// Kinds whose address goes out with a table of its own: the flag that a new letter sets.
struct AddressFlag {
  int kind;
  Cell* dirty;
};

constexpr auto AddressFlags =
    std::to_array<AddressFlag>({{2, &TempHeaderDirty}, {3, &LcdHeaderDirty}});

/// The letter goes to the module with the rest of its table.
void PickAddress(const ListField& list) {
  const ModuleKind* kind = ActiveKind();
  const int letter = list.Text().front();
  const bool another = CellAt(kind->address).Number() != letter;
  CellAt(kind->address) = letter;
  SignalChange();
  if (!another) return;
  for (const AddressFlag& row : AddressFlags) {
    if (row.kind == kind->code) *row.dirty = 1;
  }
}

void PickCell(const CellField& field) {
  CellAt(field.cell) = ReadsAsNumber(field.list->Text()).value_or(0);
  SignalChange();
  if (field.dirty != nullptr) *field.dirty = 1;
  if (field.list == &MainWindow.roomCount) KeepCopies();
}

void FillLists() {
  for (const DataGroup group : DataGroups) {
    ListField& address = MainWindow.Group(group).address;
    address.items = LetterItems('A', 'R');
    address.onPick = [&address] { PickAddress(address); };
    address.onTyped = [&address] { ShowAddress(address); };
  }
  for (const CellField& field : CellFields()) {
    field.list->items = NumberItems(field.lowest, field.highest);
    field.list->onPick = [&field] { PickCell(field); };
    field.list->onTyped = [&field] { field.list->Show(CellAt(field.cell).Text()); };
  }
  MainWindow.moduleList.items.clear();
  for (const Model& model : Models) MainWindow.moduleList.items.emplace_back(model.name);
  MainWindow.moduleList.onPick = [] {
    HideModulePage();
    ShowModel();
  };
}

void ShowCaptions() {
  Show(MainWindow.actionGroup.caption, TextId::ActionCaption);
  Show(MainWindow.connect.caption, TextId::Connect);
  Show(MainWindow.send.caption, TextId::Send);
  Show(MainWindow.upgrade.caption, TextId::Upgrade);
  Show(MainWindow.moduleListLabel.caption, TextId::ModuleCaption);
  Show(MainWindow.moreInfo.caption, TextId::MoreInfo);
  Show(MainWindow.infoInductive.caption, TextId::InfoInductive);
  Show(MainWindow.infoCapacitive.caption, TextId::InfoCapacitive);
  Show(MainWindow.infoAnalogue.caption, TextId::InfoAnalogue);
  for (const DataGroup group : DataGroups) {
    Show(MainWindow.Group(group).frame.caption, TextId::ModuleData);
    Show(MainWindow.Group(group).addressLabel.caption, TextId::ModuleAddress);
  }
  for (const CellField& field : CellFields()) Show(field.label->caption, field.caption);
  Show(MainWindow.tolerance.toolTip, TextId::ToleranceHint);
}

void FillTransferWindow() {
  Window = {.title = &MainWindow.title,
            .status = &MainWindow.status,
            .bar = &MainWindow.transferBar,
            .ownBar = &MainWindow.transferBar,
            .connect = &MainWindow.connect,
            .send = &MainWindow.send,
            .enableMenus = EnableMenus,
            .enableActions = EnableActions,
            .enableModuleFields = EnableModuleFields,
            .showModel = ShowModelOf,
            .showFields = [](const ModuleKind& kind) { ShowGroupOf(kind, Origin::Read); },
            .showModuleCells = ShowModuleCells};
}

void FillButtons() {
  MainWindow.connect.onClick = Connect;
  MainWindow.send.onClick = [] {
    HideModulePage();
    SendImage();
  };
  MainWindow.upgrade.onClick = HandOverOnRequest;
  for (std::size_t i = 0; i < ActionButtons.size(); ++i) {
    MainWindow.actionButtons[i]->onClick =
        ActionHandlers[static_cast<std::size_t>(ActionButtons[i].action)];
  }
}

/// A read that ended short of its last cell leaves the bar where it stood.
void HideBar() {
  ReturnBar();
  Window.ownBar->visible = false;
}

/// What the window shows while there is no image.
void ShowNoModule() {
  HideModulePage();
  HideBar();
  ShowDataGroup(DataGroup::General);
  ShowFieldsOf(nullptr, Origin::Read);
  ClearModuleFields();
  EnableModuleFields(false);
  EnableActions(true);
  MainWindow.status.caption.clear();
  MainWindow.connect.enabled = true;
  MainWindow.send.enabled = false;
  MainWindow.moduleList.Clear();
  ShowModel();
  MainWindow.Bewaren.enabled = MainWindow.Bewaren_als.enabled = false;
  ShowTitle("");
}

}  // namespace

void ShowSomeDataGroup() {
  if (const ModuleKind* kind = ActiveKind()) return ShowDataGroup(kind->group);
  const bool shown = std::any_of(DataGroups.begin(), DataGroups.end(), [](DataGroup group) {
    return MainWindow.Group(group).frame.visible;
  });
  if (!shown) ShowDataGroup(DataGroup::General);
}

void ShowTitle(const std::string& path) {
  Show(MainWindow.title, TextId::WindowTitle);
  if (path.empty()) return;
  MainWindow.title += std::string(TitleSeparator) + path;
}

void ShowImage(Origin origin) {
  HideModulePage();
  HideBar();
  if (const ModuleKind* kind = ActiveKind()) {
    ShowModelOf(*kind);
    ShowGroupOf(*kind, origin);
    ClearModuleFields();
    ShowAddressAndCells();
  }
  MainWindow.connect.enabled = MainWindow.send.enabled = true;
  EnableActions(true);
  EnableModuleFields(true);
  Show(MainWindow.status.caption, TextId::EditMode);
}

void LoadMainWindow() {
  FillTransferWindow();
  ShowCaptions();
  FillMenus();
  FillLists();
  LoadEditors();
  LoadModulePage(MainWindow.modulePage);
  FillButtons();
  LoadManuals();
  LoadOpenDialog();
  LoadSaveDialog();
  LoadDirectoryScreen();
  LoadDirectoryPicker();
  ShowNoModule();
  MainWindow.onClose = [] { OtherPrograms->End(); };
  MainWindow.shown = true;
  UpgradeHandOff.Enable();
}

void Connect() {
  try {
    HideModulePage();
    RxLine.clear();
    ClearModuleFields();
    Clear(ConnectClears);
    PendingCommand = ReadBase;
    if (!StartTransfer()) return;
    MainWindow.Bewaren.enabled = false;
    MainWindow.Bewaren_als.enabled = true;
    ShowTitle("");
  } catch (const RuntimeError&) {
    // A port that fails while it is closed or opened is like one that cannot be opened.
  }
}

void NewModule() {
  // A display's table frees the window before the module's last line has come.
  StopLink();
  CloseManual();
  // Of the image, New empties just this cell; so it is meant.
  CellAt(DetectorsInUse) = 0;
  ActiveModuleType = NoModule;
  RxLine.clear();
  ShowNoModule();
  Clear(NewClears);
}

}  // namespace bkconf
