#include "faults/fault_table.h"
#include "autotests/places.h"

#include "faults/fault_catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <limits>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace lorimet {
namespace {

struct ListedFault {
  int sid;
  int fmi;
  std::string description;
  std::string blink_code;
  int repair_index;
};

// One fault a line: SID, FMI, description, blink code, repair index.
std::vector<ListedFault> ReadListing() {
  std::ifstream file(InSource("autotests/faults/fault_listing.txt"));
  std::vector<ListedFault> faults;
  std::string line;
  while (std::getline(file, line)) {
    std::istringstream cells(line);
    std::string sid, fmi, description, blink_code, repair_index;
    std::getline(cells, sid, '\t');
    std::getline(cells, fmi, '\t');
    std::getline(cells, description, '\t');
    std::getline(cells, blink_code, '\t');
    std::getline(cells, repair_index, '\t');
    faults.push_back(
        {std::stoi(sid), std::stoi(fmi), description, blink_code, std::stoi(repair_index)});
  }
  return faults;
}

std::string Untranslated(const std::string& text) { return text; }

FaultTable EnglishTable() {
  FaultTable table;
  table.BuildFaultTable(Untranslated);
  return table;
}

void ExpectRow(const FaultDefinition& row, const std::string& name, int sid, int fmi, int repair) {
  EXPECT_EQ(row.Name, name);
  EXPECT_EQ(row.Sid, sid);
  EXPECT_EQ(row.Fmi, fmi);
  EXPECT_EQ(row.RepairIndex, repair);
}

TEST(FaultCatalogue, EqualsTheListingRowByRow) {
  const auto listing = ReadListing();
  ASSERT_EQ(listing.size(), 277u);
  ASSERT_EQ(kFaultCatalogue.size(), listing.size());
  for (std::size_t i = 0; i < listing.size(); ++i) {
    SCOPED_TRACE("line " + std::to_string(i + 1));
    EXPECT_EQ(kFaultCatalogue[i].sid, listing[i].sid);
    EXPECT_EQ(kFaultCatalogue[i].fmi, listing[i].fmi);
    EXPECT_EQ(kFaultCatalogue[i].description, listing[i].description);
    EXPECT_EQ(kFaultCatalogue[i].blink_code, listing[i].blink_code);
    EXPECT_EQ(kFaultCatalogue[i].repair_index, listing[i].repair_index);
  }
}

TEST(FaultCatalogue, CoversSeventyThreeSubsystemsInAscendingOrder) {
  std::set<int> sids;
  std::pair<int, int> before{0, 0};
  for (const FaultCatalogueRow& row : kFaultCatalogue) {
    sids.insert(row.sid);
    const std::pair<int, int> here{row.sid, row.fmi};
    EXPECT_LE(before, here);
    before = here;
  }
  EXPECT_EQ(sids.size(), 73u);
}

TEST(FaultCatalogue, BlinkCodesAreTwoDigitsOrUnknownOrNone) {
  for (const FaultCatalogueRow& row : kFaultCatalogue) {
    const std::string code = row.blink_code;
    const bool digits = code.size() == 3 && code[1] == '-' &&
                        code.find_first_not_of("-12345678") == std::string::npos;
    EXPECT_TRUE(digits || code == "?-?" || code.empty()) << row.sid << ' ' << row.fmi;
  }
}

TEST(FaultTable, HoldsOneBlankRowBeforeItIsBuilt) {
  const FaultTable table;
  ASSERT_EQ(table.Size(), 1u);
  ExpectRow(table[0], "", 0, 0, 0);
}

TEST(FaultTable, BuildPutsTheCatalogueBehindABlankRow) {
  const FaultTable table = EnglishTable();
  const auto listing = ReadListing();
  ASSERT_EQ(table.Size(), 278u);
  ExpectRow(table[0], "", 0, 0, 0);
  for (std::size_t i = 0; i < listing.size(); ++i) {
    SCOPED_TRACE("line " + std::to_string(i + 1));
    ExpectRow(table[i + 1], listing[i].description, listing[i].sid, listing[i].fmi,
              listing[i].repair_index);
  }
}

TEST(FaultTable, AddAppendsOneRowAndKeepsTheOthers) {
  FaultTable table;
  table.AddFaultDefinition("Second", 9, 8, "2-1", 7);
  table.AddFaultDefinition("First", 1, 2, "", 100);
  table.AddFaultDefinition("First", 1, 2, "", 100);
  ASSERT_EQ(table.Size(), 4u);
  ExpectRow(table[0], "", 0, 0, 0);
  ExpectRow(table[1], "Second", 9, 8, 7);
  ExpectRow(table[2], "First", 1, 2, 100);
  ExpectRow(table[3], "First", 1, 2, 100);
}

TEST(FaultTable, BuildDiscardsRowsThatWereAdded) {
  FaultTable table;
  table.AddFaultDefinition("Added", 1000, 1, "", 1);
  table.BuildFaultTable(Untranslated);
  table.BuildFaultTable(Untranslated);
  EXPECT_EQ(table.Size(), 278u);
  EXPECT_EQ(table.Find(1000, 1), table.Size());
}

TEST(FaultTable, EveryNameGoesThroughTheTranslationOnceInOrder) {
  std::vector<std::string> asked;
  FaultTable table;
  table.BuildFaultTable([&](const std::string& text) {
    asked.push_back(text);
    return "fr:" + text;
  });
  const auto listing = ReadListing();
  ASSERT_EQ(asked.size(), listing.size());
  EXPECT_EQ(table[0].Name, "");
  for (std::size_t i = 0; i < listing.size(); ++i) {
    EXPECT_EQ(asked[i], listing[i].description);
    EXPECT_EQ(table[i + 1].Name, "fr:" + listing[i].description);
  }
}

TEST(FaultTable, RebuildInAnotherLanguageKeepsCountAndOrder) {
  FaultTable table = EnglishTable();
  const FaultTable english = table;
  table.BuildFaultTable([](const std::string& text) { return "es:" + text; });
  ASSERT_EQ(table.Size(), english.Size());
  for (std::size_t i = 1; i < table.Size(); ++i)
    ExpectRow(table[i], "es:" + english[i].Name, english[i].Sid, english[i].Fmi,
              english[i].RepairIndex);
}

TEST(FaultTable, FindReturnsTheFirstListedRowOfEveryPair) {
  const FaultTable table = EnglishTable();
  const auto listing = ReadListing();
  for (std::size_t i = 0; i < listing.size(); ++i) {
    const auto first = std::find_if(listing.begin(), listing.end(), [&](const ListedFault& row) {
      return row.sid == listing[i].sid && row.fmi == listing[i].fmi;
    });
    EXPECT_EQ(table.Find(listing[i].sid, listing[i].fmi),
              static_cast<std::size_t>(first - listing.begin()) + 1);
  }
}

TEST(FaultTable, OfTwoRowsOfOnePairTheFirstIsFound) {
  const FaultTable table = EnglishTable();
  const std::size_t row = table.Find(117, 3);
  EXPECT_EQ(table[row].Name, "SLEV control unit - bad connection");
  EXPECT_EQ(table[row + 1].Name, "SLEV control unit - defective cable");
  EXPECT_EQ(table[row + 1].Sid, 117);
  EXPECT_EQ(table[row + 1].Fmi, 3);
  EXPECT_EQ(table[row + 1].RepairIndex, table[row].RepairIndex);
}

TEST(FaultTable, ZeroAndZeroMeetTheBlankRow) { EXPECT_EQ(EnglishTable().Find(0, 0), 0u); }

TEST(FaultTable, FaultsOfOneNameStayDistinct) {
  const FaultTable table = EnglishTable();
  EXPECT_EQ(table[table.Find(139, 3)].Name, table[table.Find(140, 3)].Name);
  EXPECT_NE(table.Find(139, 3), table.Find(140, 3));
  EXPECT_EQ(table[table.Find(76, 15)].Name, "Pneumatic control line - residual pressure");
  EXPECT_EQ(table[table.Find(143, 15)].Name, "Pneumatic control line - residual pressure");
  EXPECT_EQ(table[table.Find(144, 4)].Name, table[table.Find(144, 12)].Name);
  EXPECT_EQ(table[table.Find(144, 4)].RepairIndex, 9);
  EXPECT_EQ(table[table.Find(144, 12)].RepairIndex, 14);
}

TEST(FaultTable, AFaultWithNoRowIsFoundOnePastTheLast) {
  const FaultTable table = EnglishTable();
  for (const std::int32_t sid : {1, 2, 8, 11, 57, 135, 136, 147, 252, 256, -1})
    for (std::int32_t fmi = 0; fmi <= 15; ++fmi) EXPECT_EQ(table.Find(sid, fmi), table.Size());
  EXPECT_EQ(table.Find(3, 0), table.Size());
  EXPECT_EQ(table.Find(3, 14), table.Size());
  EXPECT_EQ(table.Find(0, 1), table.Size());
}

// A record's numbers are 32 bits wide and are not cut to the table's 16.
TEST(FaultTable, NumbersAreComparedInTheirFullWidth) {
  const FaultTable table = EnglishTable();
  EXPECT_EQ(table.Find(0x10000, 0), table.Size());
  EXPECT_EQ(table.Find(0x10003, 1), table.Size());
  EXPECT_EQ(table.Find(3, 0x10001), table.Size());
  EXPECT_EQ(table.Find(std::numeric_limits<std::int32_t>::min(), 0), table.Size());
  EXPECT_EQ(table.Find(0, std::numeric_limits<std::int32_t>::max()), table.Size());
}

}  // namespace
}  // namespace lorimet
