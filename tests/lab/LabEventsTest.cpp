#include "adapters/lab/LabEventReader.h"
#include "lab/LabFixture.h"
#include "support/Cases.h"

namespace corvane::test {

class LabEventsTest : public LabFixture {
 protected:
  /// Everything that is read from a log of this text, each record closed by "|".
  std::string Read(const std::string& text) {
    Folder.Write("Application.log", text);
    EventRecord record;
    std::string all;
    EXPECT_TRUE(Reader.Open("", EventReader::ApplicationLog));
    while (Reader.ReadNext(record))
      all += record.Time + "," + record.Type + "," + record.Source + "," + record.Description + "|";
    EXPECT_FALSE(Reader.ReadNext(record));
    return all;
  }

  LabEventReader Reader{Network, Folder.Path()};
};

TEST_F(LabEventsTest, RecordsAreReadUpToTheFirstThatIsNone) {
  for (const auto& one : Cases("lab/Events.txt")) EXPECT_EQ(Read(one[0]), one[1]) << one[0];
  for (const char* other : {"DC1", "nobody"}) EXPECT_FALSE(Reader.Open(other, EventReader::ApplicationLog)) << other;
}

// Lines of every length up to the longest lie across the blocks in which the file is read.
TEST_F(LabEventsTest, LinesAreWholeWhereverABlockEnds) {
  const auto read = [&](std::size_t longest, std::size_t step) {
    std::string text, backward;
    for (std::size_t length = 0; length <= longest; length += step) text += std::string(length, 'x') + "\n";
    BackwardLines lines(Folder.Write("lines", text));
    for (std::string_view line; lines.Previous(line);) backward.insert(0, std::string(line) + "\n");
    return backward == text;
  };
  EXPECT_TRUE(read(3000, 1));
  EXPECT_TRUE(read(BackwardLines::LongestLine, BackwardLines::LongestLine / 16));
  EXPECT_FALSE(read(BackwardLines::LongestLine + 16, BackwardLines::LongestLine / 16 + 1));
  std::string_view line;
  EXPECT_FALSE(BackwardLines(Folder.Write("endless", std::string(1'000'000, 'x'))).Previous(line));
}

}  // namespace corvane::test
