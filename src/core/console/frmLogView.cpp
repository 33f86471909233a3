#include "core/console/frmLogView.h"

#include <initializer_list>
#include <optional>

#include "core/PassOver.h"
#include "core/console/EventDate.h"
#include "core/console/EventTypes.h"
#include "core/console/LogReport.h"
#include "core/modMain.h"
#include "platform/Conversions.h"
#include "platform/EventReader.h"
#include "platform/Files.h"
#include "platform/System.h"
#include "platform/ui/UiHost.h"

namespace corvane {
namespace {

constexpr int HelpTopic = 710;
constexpr int TimeToPaint = 250;
constexpr int RecordsBetweenEvents = 256;
constexpr const char* ServiceSource = "CORVANE SERVICE";

// Stands for a line break where a text has to fit one cell.
constexpr const char* BreakMark = "<>";
constexpr const char* LineBreak = "\r\n";

std::string InOneCell(std::string_view text) {
  std::string cell;
  cell.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n' || text[i] == '\r') {
      cell += BreakMark;
      if (text.substr(i, 2) == LineBreak) ++i;
    } else {
      cell += text[i];
    }
  }
  return cell;
}

std::string InLines(std::string cell) {
  for (std::size_t at = cell.find(BreakMark); at != cell.npos; at = cell.find(BreakMark, at + 2))
    cell.replace(at, 2, LineBreak);
  return cell;
}

std::string TrimEnd(std::string text) {
  while (text.ends_with(' ')) text.pop_back();
  return text;
}

// A reader that is left open by an error would keep the log.
struct OpenLog {
  ~OpenLog() { Reader.Close(); }
  EventReader& Reader;
};

}  // namespace

frmLogView::frmLogView(modMain& main) : Form(main.Ui, "frmLogView"), main_(main) {
  HelpContext = HelpTopic;
  SetCaptions();
  SetControls();
  tmrInitialLoad.Interval = TimeToPaint;
  tmrInitialLoad.Tick = [this] { tmrInitialLoad_Timer(); };
  cmdClipboard.Click = [this] { cmdClipboard_Click(); };
  cmdRefresh.Click = [this] { cmdRefresh_Click(); };
  cmdExport.Click = [this] { cmdExport_Click(); };
  cmdClose.Click = [this] { cmdClose_Click(); };
}

void frmLogView::SetCaptions() {
  Caption = "Corvane Log Entries";
  fraEvents.Caption = "&Event Log Entries Logged By the Corvane Service";
  fraDescription.Caption = "&Description";
  chkEventsToShow[0].Caption = "Show &Information Events";
  chkEventsToShow[1].Caption = "Show &Warning Events";
  chkEventsToShow[2].Caption = "&Show Error Events";
  cmdClipboard.Caption = "&Copy to Clipboard";
  cmdClipboard.ToolTip = "Copy Selected Event To Clipboard";
  cmdRefresh.Caption = "&Refresh Log Entries";
  cmdExport.Caption = "E&xport to HTML";
  cmdExport.ToolTip = "Print Filtered Items";
  cmdClose.Caption = "Close";
}

void frmLogView::SetControls() {
  lvEvents.Columns = {{"Date/Time", 3000}, {"Description", 8500}};
  lvEvents.SetMultiSelect(false);
  lvEvents.ItemClick = [this](int) { ClickActiveEvent(); };
  txtDescription.MultiLine = txtDescription.Locked = true;
  for (int i = 0; ui::CheckBox & box : chkEventsToShow) {
    box.Index = i++;
    box.Value = true;
    box.Click = [this] { chkEventsToShow_Click(); };
  }
  cmdClose.Cancel = true;
}

void frmLogView::Form_Unload() { events_.Release(); }

void frmLogView::tmrInitialLoad_Timer() {
  tmrInitialLoad.Enabled = false;
  FetchCVServiceEvents();
  FillCVEventsList();
  if (lvEvents.Count() > 0) lvEvents.Select(0);
  ClickActiveEvent();
}

void frmLogView::chkEventsToShow_Click() { FillCVEventsList(); }

void frmLogView::cmdRefresh_Click() {
  // Pressed very early, this is the first reading.
  tmrInitialLoad.Enabled = false;
  FetchCVServiceEvents();
  FillCVEventsList();
}

void frmLogView::cmdClose_Click() { Unload(); }

// Close stays, so that the reading of a long log can be given up.
void frmLogView::LockFormControls() {
  EnableControls(false);
  MousePointer = ui::Pointer::Hourglass;
}

void frmLogView::UnlockFormControls() {
  EnableControls(true);
  MousePointer = ui::Pointer::Default;
}

void frmLogView::EnableControls(bool on) {
  for (ui::Control* control :
       std::initializer_list<ui::Control*>{&lvEvents, &txtDescription, &chkEventsToShow[0], &chkEventsToShow[1],
                                           &chkEventsToShow[2], &cmdClipboard, &cmdRefresh, &cmdExport})
    control->Enabled = on;
}

void frmLogView::FetchCVServiceEvents() {
  events_.Release();
  EventReader& reader = main_.Platform.EventReader;
  reader.NarrowTo(ServiceSource);
  if (!reader.Open(main_.Platform.System.ComputerName().value_or(""), EventReader::ApplicationLog)) {
    main_.Ui.MsgBox("Corvane could not open the local application log to view events recorded by the Corvane Service.",
                    ui::MsgIcon::Exclamation);
    return;
  }
  const OpenLog open{reader};
  LockFormControls();
  ReadEvents();
  UnlockFormControls();
}

// The caption tells how far back the log reaches, also where its oldest events are those of others.
void frmLogView::ReadEvents() {
  EventRecord record;
  std::optional<DateTime> oldest;
  int count = 0;
  while (!IsUnloaded() && main_.Platform.EventReader.ReadNext(record)) {
    const std::optional<DateTime> date = EventDate(record.Time);
    if (date && (!oldest || *date < *oldest)) oldest = date;
    if (SameText(Trim(record.Source), ServiceSource)) Keep(record);
    ServeWindow(count);
  }
  fraEvents.Caption =
      "&Event Log Entries Logged By the Corvane Service Since " + (oldest ? EventDateText(*oldest) : "");
}

void frmLogView::Keep(const EventRecord& record) {
  events_.Add({FixDate(record.Time), UpperCase(record.Type), TrimEnd(record.Description)});
}

// The form may be unloaded meanwhile, and its events with it.
void frmLogView::ServeWindow(int& count) {
  if (++count % RecordsBetweenEvents == 0) main_.Ui.DoEvents();
}

bool frmLogView::IsToShow(const ServiceEvent& event) const {
  const std::size_t place = PlaceOfEventType(event.Type);
  return place < chkEventsToShow.size() && chkEventsToShow[place].Value;
}

void frmLogView::FillCVEventsList() {
  lvEvents.Clear();
  for (const ServiceEvent& event : events_)
    if (IsToShow(event))
      lvEvents.Add({"", event.Date, {InOneCell(event.Description)}, EventTypes[PlaceOfEventType(event.Type)].Picture});
  ClickActiveEvent();
}

void frmLogView::ClickActiveEvent() {
  const int row = lvEvents.SelectedRow();
  txtDescription.Text = row < 0 ? "" : InLines(lvEvents.Item(row).Cell(eventcolumn::Description));
}

void frmLogView::cmdClipboard_Click() {
  const int row = lvEvents.SelectedRow();
  if (row < 0) return;
  const ui::ListItem& item = lvEvents.Item(row);
  std::string text;
  for (const EventType& type : EventTypes)
    if (item.Icon == type.Picture) text = std::string("Type Of Event: ") + type.Name;
  text += std::string(LineBreak) + "Date and Time: " + item.Text + LineBreak +
          "Description: " + InLines(item.Cell(eventcolumn::Description));
  main_.Ui.SetClipboardText(text);
}

void frmLogView::cmdExport_Click() {
  if (lvEvents.Count() == 0) {
    main_.Ui.MsgBox("Events must be present in order to prepare an HTML report.", ui::MsgIcon::Exclamation);
    return;
  }
  const std::optional<std::string> path = main_.Ui.SaveFile(
      {"Save Corvane Service Log Records To...", "HTML files (*.htm)", "*.htm", "Corvane_Service_Log_Entries.htm"});
  if (!path) return;
  LockFormControls();
  WriteReport(*path);
  UnlockFormControls();
}

// A file that cannot be written is passed over in silence; one that is there stays as it is when the form is closed
// meanwhile.
void frmLogView::WriteReport(const std::string& path) {
  std::string report = CreateHTMLHeader(main_.Platform.System.Now());
  int count = 0;
  for (const ServiceEvent& event : events_) {
    if (IsToShow(event)) CreateNextHTMLRecord(report, event);
    ServeWindow(count);
    if (IsUnloaded()) return;
  }
  report += CreateHTMLFooter();
  PassOver([&] { main_.Platform.Files.Write(path, report); });
}

}  // namespace corvane
