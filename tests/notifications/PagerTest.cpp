#include "core/Settings.h"
#include "notifications/cvbTAPI.h"
#include "support/TestConsole.h"

namespace corvane::test {

using U = std::uint32_t;

// Lines that write down what is asked of them and fail where they are told to.
struct RecordedLines : Telephony {
  int InitializeEx(U& application, Callback callback, const std::string& title, U& devices) override {
    Tell = callback, devices = static_cast<U>(Devices.size());
    return Note("initialize " + title, {}, &application);
  }
  int NegotiateAPIVersion(U, U device, U low, U high, U& out) override {
    return Note("negotiate", {device, low, high}, &out);
  }
  int Open(U, U device, U& out, U version, U rights, U media) override {
    return Note("open", {device, version, rights, media}, &out);
  }
  int GetDevCaps(U, U device, U, LineDeviceCaps& caps) override {
    return caps = Devices[device], Note("caps", {device});
  }
  int MakeCall(U, U& call, const std::string& digits) override {
    return Note((Pager->isConnected() ? "call " : "early call ") + digits, {}, &call);
  }
  int Drop(U) override { return Note("drop"); }
  int DeallocateCall(U) override { return Note("free"); }
  int Close(U) override { return Note("close"); }
  int Shutdown(U) override { return Note("end"); }
  int Note(std::string request, std::initializer_list<U> numbers = {}, U* out = nullptr) {
    for (const U number : numbers) request += " " + std::to_string(number);
    Told += request + "; ";
    if (request.starts_with(Failing)) return Raises ? throw RuntimeError(errors::AutomationError, "failed") : -1;
    if (out) *out = 7;
    return 1;
  }

  std::vector<LineDeviceCaps> Devices{{16, 64, 8}};
  std::string Failing = "none", Told;
  bool Raises = false;
  Callback Tell;
  cvbTAPI* Pager = nullptr;
};

TEST(PagerTest, DialsAndHangsUpWhenTheOtherEndAnswers) {
  TestConsole console;
  RecordedLines lines;
  {
    cvbTAPI pager(console.App.State(), lines);
    lines.Pager = &pager;
    pager.Connect("5550142,,,411");
    lines.Tell(line::MessageCallState, line::CallStateBusy);
    lines.Tell(line::MessageCallState + 1, line::CallStateConnected);
    EXPECT_TRUE(pager.isConnected());
    lines.Tell(line::MessageCallState, line::CallStateConnected);
    EXPECT_TRUE(!pager.isConnected() && console.Host.EventsServed == 1);
    pager.Disconnect();
    lines.Failing = "open 3";
    for (const U device : {2, 3}) pager.SetModemToUse(device), pager.Connect(std::to_string(device));
  }
  EXPECT_EQ(lines.Told,
            "initialize Corvane; negotiate 0 65539 131074; open 0 7 4 16; call 5550142,,,411; drop; free; close; "
            "open 2 7 4 16; call 2; close; open 3 7 4 16; free; end; ");
}

TEST(PagerTest, ListsModemsByTheirNamesAndTrapsEveryFailure) {
  TestConsole console;
  RecordedLines lines;
  ui::Form form(console.Host, "frmTest");
  ui::ComboBox box(form, "cboDataModem");
  lines.Devices = {{16, 64, 8}, {16 + 4, 64 + 1, 8 + 2}, {16, 64, 2}, {16, 1, 8}, {4, 64, 8}};
  lines.Devices.resize(11, {16, 64, 8});
  lines.Failing = "caps 5";
  const std::string tenth = ModemsKey + std::string("\\00010");
  console.App.State().Registry.CreateNewKey(tenth, registry::LocalMachine);
  console.App.State().Registry.SetKeyValue(tenth, "FriendlyName", "Tenth", registry::String);
  cvbTAPI(console.App.State(), lines).ListModems(box);
  const std::vector<std::string> names{"56K Data Fax Modem", "33.6K External Modem", "", "", "", "", "Tenth"};
  EXPECT_TRUE(box.All() == names && box.ListIndex() == 0);
  for (const char* request : {"initialize", "negotiate", "open", "caps", "call", "drop", "free", "close", "end"})
    for (const bool raises : {false, true}) {
      lines.Failing = request, lines.Raises = raises;
      cvbTAPI pager(console.App.State(), lines);
      lines.Pager = &pager;
      pager.SetModemToUse(0);
      pager.ListModems(box);
      pager.Connect("1");
      EXPECT_EQ(pager.isConnected(), lines.Failing != "open") << request << ": a failed call lasts";
      pager.Disconnect();
      const bool hadCall = lines.Failing != "open" && lines.Failing != "call";
      EXPECT_TRUE(!pager.isConnected() && lines.Told.ends_with("drop; free; ") == hadCall) << request;
    }
}

}  // namespace corvane::test
