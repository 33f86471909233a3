#include "core/console/frmLogView.h"

#include "core/console/EventDate.h"
#include "platform/EventReader.h"
#include "support/Cases.h"
#include "support/ConsoleTest.h"

namespace corvane::test {

constexpr const char* Target = "C:\\Corvane\\report.htm";

static std::string Repeat(int count, const std::string& text) {
  std::string all;
  while (count-- > 0) all += text;
  return all;
}

// One record of each type and some of others, the newest last.
const std::string Mixed = ReadTextFile(CORVANE_SOURCE_DIR "/tests/console/Events.txt");

class LogViewTest : public ConsoleTest {
 protected:
  /// Opens the viewer; the script acts when the log has been read.
  void View(const std::function<void(frmLogView&)>& script) {
    Host.OnModal<frmLogView>("frmLogView", [&](frmLogView& form) {
      Host.Pass(249);
      EXPECT_EQ(form.lvEvents.Count(), 0);
      Host.Pass(250);
      script(form);
      form.CloseBox();
    });
    frmLogView(Main).ShowModal();
    EventRecord record;
    EXPECT_FALSE(Console.Ports.EventReader.ReadNext(record)) << "the log was left open";
  }
  void Export(frmLogView& form, const std::optional<std::string>& path) {
    Host.OnSaveFile(path);
    Host.Click(form.cmdExport);
    EXPECT_TRUE(form.IsUnloaded() || form.cmdExport.Enabled);
  }

  const std::filesystem::path Log = Console.Folder() / "eventlog" / "Application.log";
  const std::filesystem::path Report = Console.Folder() / "report.htm";
};

TEST_F(LogViewTest, TheBoxesChooseWhatIsListed) {
  WriteTextFile(Log, Mixed);
  View([&](frmLogView& form) {
    EXPECT_EQ(form.fraEvents.Caption, "&Event Log Entries Logged By the Corvane Service Since 11/1/2026 08:00:00");
    EXPECT_EQ(form.lvEvents.SelectedRow(), 0);
    const char* const rows[] = {"11/5/2026 09:00:01 info,", "11/3/2026 12:30:00 warning,", "11/4/2026 23:59:59 error,"};
    for (int boxes = 8; boxes-- > 0;) {
      std::string expected, listed;
      for (const int box : {0, 2, 1}) {
        if (form.chkEventsToShow[box].Value != ((boxes >> box & 1) != 0)) Host.Click(form.chkEventsToShow[box]);
        if (form.chkEventsToShow[box].Value) expected += rows[box];
      }
      for (const ui::ListItem& item : form.lvEvents.Items()) listed += item.Text + " " + item.Icon + ",";
      EXPECT_EQ(listed, expected);
      EXPECT_EQ(form.txtDescription.Text, boxes == 7 ? "Jörg \r\n Müller" : "");
    }
    OnMessage("NoEvents");
    Host.Click(form.cmdExport);
  });
  // Lines stand in one cell and come back below the list.
  View([&](frmLogView& form) {
    const std::string lines = "The insert failed:\r\n<script src=\"//x.example/a.js\"></script> &amp;";
    Host.SelectOnly(form.lvEvents, 1);
    EXPECT_EQ(form.lvEvents.Item(1).Cell(1).substr(0, 28), "The insert failed:<><script ");
    EXPECT_EQ(form.txtDescription.Text, lines);
    Host.Click(form.cmdClipboard);
    form.lvEvents.SelectNone();
    Host.Click(form.cmdClipboard);
    EXPECT_EQ(Host.Clipboard, "Type Of Event: Error\r\nDate and Time: 11/4/2026 23:59:59\r\nDescription: " + lines);
  });
}

TEST_F(LogViewTest, EachRefreshShowsWhatTheLogHolds) {
  frmLogView form(Main);
  form.Show();
  const std::string none = "none";
  for (const auto& [text, rows] :
       {std::pair(Mixed, 3), {none, 0}, {none, 0}, {Mixed, 3}, {"", 0}, {"?\n" + Mixed, 3}}) {
    WriteTextFile(Log, text);
    if (text == none) {
      std::filesystem::remove(Log);
      OnMessage("NoApplicationLog");
    }
    Host.Click(form.cmdRefresh);
    // Pressed before the first reading, the button has taken its place.
    Host.Pass(1000);
    EXPECT_EQ(form.lvEvents.Count(), rows) << text;
    EXPECT_TRUE(form.lvEvents.Enabled && form.cmdExport.Enabled);
  }
}

TEST_F(LogViewTest, TheViewerMayBeClosedWhileItWorks) {
  WriteTextFile(Log, Repeat(1000, Mixed));
  const auto close = [&] {
    Host.OnDoEvents([&] {
      const auto& form = dynamic_cast<const frmLogView&>(Host.Top());
      std::string enabled;
      for (const ui::Control* control : form.Controls()) enabled += control->Enabled ? control->Name() : "";
      EXPECT_EQ(enabled, "fraEventsfraDescriptioncmdClose");
      Host.Top().CloseBox();
    });
  };
  close();
  View([&](frmLogView& form) { EXPECT_TRUE(form.IsUnloaded() && form.lvEvents.Count() == 0); });
  EXPECT_EQ(Host.EventsServed, 1);
  View([&](frmLogView& form) {
    close();
    Export(form, Target);
    EXPECT_TRUE(form.IsUnloaded());
  });
  EXPECT_FALSE(std::filesystem::exists(Report));
}

// Many enough that the room for events grows three times.
TEST_F(LogViewTest, TheReportIsRightToTheByte) {
  std::string golden;
  for (const char c : ReadTextFile(CORVANE_SOURCE_DIR "/tests/console/report.htm"))
    golden += c == '\n' ? "\r\n" : std::string(1, c);
  const std::size_t first = golden.find("<TR BGCOLOR=#C0C0C0>"), footer = golden.rfind("</TABLE>");
  for (const int times : {1, 3334}) {
    WriteTextFile(Log, Repeat(times, Mixed));
    View([&](frmLogView& form) {
      Export(form, std::nullopt);
      Export(form, "C:\\Corvane\\none\\report.htm");
      EXPECT_FALSE(std::filesystem::exists(Report));
      Export(form, Target);
      EXPECT_EQ(form.lvEvents.Count(), 3 * times);
    });
    EXPECT_EQ(ReadTextFile(Report),
              golden.substr(0, first) + Repeat(times, golden.substr(first, footer - first)) + golden.substr(footer));
    std::filesystem::remove(Report);
  }
  const ui::SaveDialog& asked = Host.SaveDialogs.front();
  EXPECT_EQ(asked.Title + "|" + asked.Filter + "|" + asked.Pattern + "|" + asked.FileName,
            "Save Corvane Service Log Records To...|HTML files (*.htm)|*.htm|Corvane_Service_Log_Entries.htm");
}

TEST(EventDateTest, ATimeIsReadInItsColumns) {
  for (const auto& one : Cases("console/EventDates.txt")) EXPECT_EQ(one[1], FixDate(one[0])) << one[0];
}

}  // namespace corvane::test
