// What must hold of the ranges of typical players.

#include <QDateTime>

#include <gtest/gtest.h>

#include "library_reader.h"

namespace velmora {
namespace {

using Names = std::vector<std::string>;

const std::string kPassive = "Passive (VPIP 18–65) / ";
const std::string kAggressive = "Loose aggressive (VPIP 28–70) / ";
const std::string kNit = "Overfolder (10-22 VPIP) / Nit";

const Names kArchetypes{kPassive + "Passive tight (VPIP 18–25)",
                        kPassive + "Passive neutral (VPIP 25–35)",
                        kPassive + "Passive loose (VPIP 35–45)",
                        kPassive + "Extreme loose (VPIP 45–65)",
                        kAggressive + "Standard LAG (VPIP 28–40)",
                        kAggressive + "Maniac (VPIP 45–70)",
                        kNit};

const LibraryRows& rows_of(const std::string& seat) {
  static const LibraryRows oop = population_rows("oop");
  static const LibraryRows ip = population_rows("ip");
  return seat == "oop" ? oop : ip;
}

/// The range of a name; an empty one if there is no such row.
PocketWeights range(const std::string& seat, const std::string& name) {
  const auto& rows = rows_of(seat);
  const auto found = std::ranges::find(rows, name, &LibraryRows::value_type::first);
  return found == rows.end() ? PocketWeights{} : parse_range_text(found->second);
}

TEST(PopulationRanges, AreAnExportOfBothSeats) {
  const QJsonObject document = library("exploit_ranges.json");
  EXPECT_EQ(document["format"].toString().toStdString(), "velmora_ranges_export");
  EXPECT_EQ(document["version"].toInt(), 1);
  EXPECT_TRUE(QDateTime::fromString(document["generatedAt"].toString(), Qt::ISODate).isValid());
  for (const char* seat : {"oop", "ip"}) {
    EXPECT_TRUE(document[seat].toObject()["standard"].isArray());
    EXPECT_TRUE(list("exploit_ranges.json", seat, "standard").isEmpty());
  }
  EXPECT_EQ(rows_of("oop").size(), 193);
  EXPECT_EQ(rows_of("ip").size(), 202);
}

TEST(PopulationRanges, NoHandDoesMoreThanItCan) {
  PocketWeights always{};
  always.fill(1);
  for (const std::string seat : {"oop", "ip"}) {
    for (const std::string& archetype : kArchetypes) {
      EXPECT_GT(percent(range(seat, archetype + " / UTG/HJ/CO / RFI")), 0) << archetype;
      for (const char* position : {"UTG/HJ/CO", "BU", "SB", "BB"}) {
        const std::string path = archetype + " / " + position + " / ";
        const auto leaf = [&](const char* name) { return range(seat, path + name); };
        EXPECT_TRUE(within(sum(leaf("Limp"), leaf("RFI")), always)) << path;
        EXPECT_TRUE(within(sum(leaf("Limp-call"), leaf("Limp-3b")), leaf("Limp"))) << path;
        EXPECT_TRUE(within(sum(leaf("Call 3b"), leaf("4b")), leaf("RFI"))) << path;
        EXPECT_TRUE(within(leaf("Call 4b"), leaf("3b"))) << path;
        EXPECT_TRUE(within(sum(sum(leaf("Call raise"), leaf("Call")), leaf("3b")), always)) << path;
      }
    }
  }
  // Strong hands that are slow-played.
  const PocketWeights trap =
      range("oop", kPassive + "Passive tight (VPIP 18–25) / UTG/HJ/CO / Limp-3b");
  EXPECT_EQ(trap, parse_range("QQ:0.5, AKo:0.5, AKs:0.5, KK:0.5, AA:0.5"));
}

}  // namespace
}  // namespace velmora
