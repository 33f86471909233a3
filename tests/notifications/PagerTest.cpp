#include "core/Settings.h"
#include "notifications/cvbTAPI.h"
#include "support/TestConsole.h"

namespace corvane::test {

// Lines that write down what is asked of them.
class RecordedLines : public Telephony {
 public:
  int InitializeEx(std::uint32_t& application, Callback callback, const std::string& title,
                   std::uint32_t& devices) override {
    Tell = callback;
    devices = static_cast<std::uint32_t>(Devices.size());
    return Note("initialize " + title, &application);
  }
  int NegotiateAPIVersion(std::uint32_t, std::uint32_t device, std::uint32_t low, std::uint32_t high,
                          std::uint32_t& version) override {
    return Note("negotiate " + Numbers({device, low, high}), &version);
  }
  int Open(std::uint32_t, std::uint32_t device, std::uint32_t& line, std::uint32_t version, std::uint32_t privileges,
           std::uint32_t mediaModes) override {
    return Note("open " + Numbers({device, version, privileges, mediaModes}), &line);
  }
  int GetDevCaps(std::uint32_t, std::uint32_t device, std::uint32_t, LineDeviceCaps& caps) override {
    caps = Devices[device];
    return caps.MediaModes == 0 ? -1 : Note("caps");
  }
  int MakeCall(std::uint32_t, std::uint32_t& call, const std::string& digits) override {
    WasInCall = Pager->isConnected();
    return Note("call " + digits, &call);
  }
  int Drop(std::uint32_t) override { return Note("drop"); }
  int DeallocateCall(std::uint32_t) override { return Note("free"); }
  int Close(std::uint32_t) override { return Note("close"); }
  int Shutdown(std::uint32_t) override { return Note("end"); }

  std::string Taken() { return std::exchange(told_, ""); }

  std::vector<LineDeviceCaps> Devices;
  /// The beginning of the request that fails, and whether it raises.
  std::string Failing = "none";
  bool Raises = false, WasInCall = false;
  cvbTAPI* Pager = nullptr;
  Callback Tell;

 private:
  static std::string Numbers(std::initializer_list<std::uint32_t> numbers) {
    std::string text;
    for (const std::uint32_t number : numbers) text += (text.empty() ? "" : ",") + std::to_string(number);
    return text;
  }
  int Note(const std::string& request, std::uint32_t* out = nullptr) {
    told_ += request + "; ";
    if (request.starts_with(Failing) && Raises) throw RuntimeError(errors::AutomationError, "failed");
    if (request.starts_with(Failing)) return -1;
    if (out) *out = 7;
    return 1;
  }

  std::string told_;
};

class PagerTest : public testing::Test {
 protected:
  std::unique_ptr<cvbTAPI> NewPager() {
    auto pager = std::make_unique<cvbTAPI>(Console.App.State(), Lines);
    Lines.Pager = pager.get();
    return pager;
  }

  TestConsole Console;
  RecordedLines Lines;
  ui::Form Form{Console.Host, "frmTest"};
  ui::ComboBox Box{Form, "cboDataModem"};
};

TEST_F(PagerTest, DialsAndHangsUpWhenTheOtherEndAnswers) {
  auto pager = NewPager();
  EXPECT_EQ(Lines.Taken(), "initialize Corvane; negotiate 0,65539,131074; open 0,7,4,16; ");
  pager->Disconnect();
  pager->Connect("5550142,,,411");
  EXPECT_TRUE(Lines.WasInCall);
  Lines.Tell(line::MessageCallState, line::CallStateBusy);
  Lines.Tell(line::MessageCallState + 1, line::CallStateConnected);
  EXPECT_EQ(Lines.Taken(), "call 5550142,,,411; ");
  EXPECT_TRUE(pager->isConnected());
  const int served = Console.Host.EventsServed;
  Lines.Tell(line::MessageCallState, line::CallStateConnected);
  EXPECT_FALSE(pager->isConnected());
  EXPECT_EQ(Console.Host.EventsServed, served + 1);
  pager->SetModemToUse(2);
  pager->Connect("1");
  pager.reset();
  EXPECT_EQ(Lines.Taken(), "drop; free; close; open 2,7,4,16; call 1; free; end; ");
}

TEST_F(PagerTest, StaysInAFailedCallUntilItDisconnectsAndNeverDialsWithoutALine) {
  for (Lines.Raises = false;; Lines.Raises = true) {
    Lines.Failing = "call";
    auto pager = NewPager();
    Lines.Taken();
    EXPECT_LT(pager->Connect("1"), 0);
    EXPECT_TRUE(pager->isConnected());
    pager->Disconnect();
    EXPECT_FALSE(pager->isConnected());
    Lines.Failing = "open";
    pager->SetModemToUse(1);
    pager->Connect("2");
    EXPECT_FALSE(pager->isConnected());
    EXPECT_EQ(Lines.Taken(), "call 1; close; open 1,7,4,16; ");
    if (Lines.Raises) break;
  }
  Lines.Devices = {{16, 64, 8}};
  for (const char* request : {"initialize", "negotiate", "open", "caps", "call", "drop", "free", "close", "end"}) {
    Lines.Failing = request;
    auto pager = NewPager();
    pager->SetModemToUse(0);
    pager->ListModems(Box);
    pager->Connect("1");
    pager->Disconnect();
    EXPECT_FALSE(pager->isConnected()) << request;
  }
}

TEST_F(PagerTest, ListsWhatIsAModemByItsNameInTheRegistry) {
  auto pager = NewPager();
  pager->ListModems(Box);
  EXPECT_EQ(Box.ListIndex(), -1);
  Lines.Devices = {{16, 64, 8}, {16 + 4, 64 + 1, 8 + 2}, {16, 64, 2}, {16, 1, 8}, {4, 64, 8}, {0, 64, 8}};
  Lines.Devices.resize(11, {16, 64, 8});
  Reghack& registry = Console.App.State().Registry;
  const std::string tenth = ModemsKey + std::string("\\00010");
  registry.CreateNewKey(tenth, registry::LocalMachine);
  registry.SetKeyValue(tenth, "FriendlyName", "Tenth", registry::String);
  NewPager()->ListModems(Box);
  EXPECT_EQ(Box.All(),
            (std::vector<std::string>{"56K Data Fax Modem", "33.6K External Modem", "", "", "", "", "Tenth"}));
  EXPECT_EQ(Box.ListIndex(), 0);
}

}  // namespace corvane::test
