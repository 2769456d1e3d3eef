#include "draft.h"

#include <memory>

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "file_test_support.h"

TEST(Draft, IsLeftBehindByARunThatDidNotDropIt) {
  const LogCapture log;
  QTemporaryDir dir;
  const QString folder = dir.filePath("data");
  const QVariantMap spot{{"boardText", "AsKd7h"}, {"startingPot", 180}};
  auto draft = std::make_unique<Draft>(folder);
  EXPECT_EQ(draft->leftBehind(), QVariantMap());
  EXPECT_TRUE(draft->keep({{"boardText", "2c3c4c"}}));
  EXPECT_TRUE(draft->keep(spot));
  EXPECT_EQ(draft->leftBehind(), QVariantMap()) << "it is this run's own";

  Draft second(folder);  // The folder has its owner.
  EXPECT_EQ(second.leftBehind(), QVariantMap());
  EXPECT_FALSE(second.keep({{"boardText", "5c6c7c"}}));
  second.drop();

  draft = nullptr;
  draft = std::make_unique<Draft>(folder);
  EXPECT_EQ(draft->leftBehind().value("project").toMap().value("boardText"), "AsKd7h");
  EXPECT_TRUE(draft->leftBehind().value("savedAt").toDateTime().isValid());
  draft->drop();
  draft = nullptr;
  EXPECT_EQ(Draft(folder).leftBehind(), QVariantMap());

  QFile broken(folder + "/draft.json");
  ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
  broken.write("{\"project\": [");
  broken.close();
  EXPECT_EQ(Draft(folder).leftBehind(), QVariantMap());
  EXPECT_FALSE(Draft(dir.filePath("data/draft.json/no")).keep(spot));
}
