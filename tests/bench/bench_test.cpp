// What the benchmark makes of its figures and of its command line; the timing itself is never tested.
#include "bench/format.h"
#include "bench/options.h"
#include "bench/result.h"
#include "bench/statistics.h"
#include "gtest/gtest.h"

using namespace orb::bench;

namespace {

TEST(Bench, Statistics) {
  EXPECT_EQ(median({3}), 3);
  EXPECT_EQ(median({9, 1, 5}), 5);
  EXPECT_EQ(median({8, 1, 2, 4}), 3);
  EXPECT_DOUBLE_EQ(geometric_mean({2, 0.5}), 1);
  EXPECT_DOUBLE_EQ(geometric_mean({1, 2, 4}), 2);
}

TEST(Bench, DurationsKeepThreeDigitsAcrossUnits) {
  const struct {
    double seconds;
    const char* text;
  } rows[] = {{4.712e-9, "4.71 ns"}, {9.996e-9, "10.0 ns"}, {0.9994e-6, "999 ns"}, {0.9996e-6, "1.00 us"},
              {99.96e-6, "100 us"},  {12.34e-3, "12.3 ms"}, {5, "5.00 s"},         {3600, "3600 s"}};
  for (const auto& row : rows) EXPECT_EQ(duration(row.seconds), row.text);
}

TEST(Bench, RatioIsToTheFastestPeerThatTookPart) {
  const auto of = [](std::optional<double> seconds) {
    return seconds ? std::optional(Measurement{*seconds, *seconds, 0}) : std::nullopt;
  };
  EXPECT_EQ(ratio_to_peers({nullptr, {of(2), of(8), {}, of(3)}}, true), 1.5);
  EXPECT_EQ(ratio_to_peers({nullptr, {{}, of(8), of(3)}}, true), std::nullopt);  // we do not have the routine
  EXPECT_EQ(ratio_to_peers({nullptr, {of(2), {}, {}}}, true), std::nullopt);     // nobody else has
  EXPECT_EQ(ratio_to_peers({nullptr, {of(2), of(1)}}, false), std::nullopt);     // ours was not found at all
  EXPECT_EQ(fastest_peer({nullptr, {of(2), of(1)}}, false), 1u);
}

TEST(Bench, OptionsAreRead) {
  const auto parsed =
      parse_options({"--quick", "--threads", "2", "--peer", "mine=/a/b=c", "--filter", "dot n"});
  const Options& options = std::get<Options>(parsed);
  EXPECT_TRUE(options.quick);
  EXPECT_EQ(options.threads, 2);
  EXPECT_EQ(options.filter, "dot n");
  ASSERT_EQ(options.peers.size(), 1u);
  EXPECT_EQ(options.peers[0].name, "mine");
  EXPECT_EQ(options.peers[0].path, "/a/b=c");
  EXPECT_LT(options.min_time, std::get<Options>(parse_options({})).min_time);
}

TEST(Bench, WrongOptionsAreNamed) {
  const struct {
    std::vector<std::string> arguments;
    const char* message;
  } rows[] = {{{"--fast"}, "unknown option '--fast'"},
              {{"--quick", "--threads"}, "--threads needs a value"},
              {{"--threads", "0"}, "--threads cannot be '0'"},
              {{"--threads", "1.5"}, "--threads cannot be '1.5'"},
              {{"--repetitions", "3x"}, "--repetitions cannot be '3x'"},
              {{"--min-time", "nan"}, "--min-time cannot be 'nan'"},
              {{"--peer", "=/lib.so"}, "--peer cannot be '=/lib.so'"},
              {{"--peer", "name="}, "--peer cannot be 'name='"}};
  for (const auto& row : rows) {
    const auto parsed = parse_options(row.arguments);
    ASSERT_TRUE(std::holds_alternative<std::string>(parsed)) << row.message;
    EXPECT_EQ(std::get<std::string>(parsed), row.message);
  }
}

}  // namespace
