// Tables in 16 bits.
#include "solver_state.h"

#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "rows.h"

namespace {

TEST(CompressedStorage, RoundsToTheNearestStepOfTheGreatestMagnitude) {
  // Four hands, so that half of each row is padding; the padding's value must not set the scale.
  struct Case {
    std::vector<float> hands;
    float scale;
    std::vector<std::int16_t> q;
  };
  const float half = 0.5F / 32767.0F;
  for (const Case& c : {Case{{2.0F, -1.0F, 0.0F, 1.0F}, 2.0F, {32767, -16384, 0, 16384}},
                        Case{{0.0F, 0.0F, 0.0F, 0.0F}, 1.0F, {0, 0, 0, 0}},
                        Case{{1e-9F, -1e-10F, 0.0F, 0.0F}, 1.0F, {0, 0, 0, 0}},
                        Case{{1.0F, half, -half, 0.4F * half}, 1.0F, {32767, 1, -1, 0}}}) {
    std::vector<float> floats(velmora::padded(4), 9.0F);
    std::copy(c.hands.begin(), c.hands.end(), floats.begin());
    std::vector<std::int16_t> q(floats.size(), 99);
    float scale = -1;
    velmora::quantize_block(1, 4, floats.data(), q.data(), scale);
    EXPECT_EQ(scale, c.scale);
    EXPECT_THAT(std::vector(q.begin(), q.begin() + 4), testing::ElementsAreArray(c.q));
    EXPECT_THAT(std::vector(q.begin() + 4, q.end()), testing::Each(0));

    std::vector<float> back(floats.size(), 9.0F);
    velmora::dequantize_block(1, 4, q.data(), scale, back.data());
    for (std::size_t h = 0; h < 4; ++h) {
      EXPECT_EQ(back[h], static_cast<float>(c.q[h]) / 32767.0F * c.scale);
      EXPECT_NEAR(back[h], c.hands[h], c.scale / 32767.0F);
    }
  }
}

}  // namespace
