// What the tour makes of its input and of its checks, without the library.
#include <cmath>
#include <sstream>

#include "gtest/gtest.h"
#include "tour/csv.h"
#include "tour/options.h"
#include "tour/report.h"

using namespace orb::tour;

namespace {

TEST(Tour, CsvIsReadByRows) {
  std::istringstream in("1, 2.5,-3\r\n4,5e2,6");
  const Matrix table = read_csv(in, "table");
  ASSERT_EQ(table.rows, 2);
  ASSERT_EQ(table.columns, 3);
  EXPECT_EQ(table.elements, (std::vector<double>{1, 4, 2.5, 500, -3, 6}));
}

TEST(Tour, NamesStandAboveTheirColumns) {
  std::istringstream in("a, b.c\r\n1,2\n3,4\n");
  const NamedColumns table = read_named_csv(in, "table");
  EXPECT_EQ(table.names, (std::vector<std::string>{"a", "b.c"}));
  EXPECT_EQ(table.values.elements, (std::vector<double>{1, 3, 2, 4}));
  for (const auto& [content, message] :
       {std::pair{"", "f: the file is empty"},
        {"a,b\n", "f: there are no numbers"},
        {"a,b\n1,2,3\n", "f, line 2: there are 3 values here and 2 in the first line"}}) {
    std::istringstream bad(content);
    try {
      read_named_csv(bad, "f");
      ADD_FAILURE() << "accepted: " << content;
    } catch (const BadFile& wrong) {
      EXPECT_STREQ(wrong.what(), message);
    }
  }
}

TEST(Tour, BadCsvIsAnsweredWithLineAndReason) {
  const struct {
    const char *content, *message;
  } rows[] = {{"", "f.csv: the file is empty"},
              {"1,2\n\n3,4\n", "f.csv, line 2: the line is empty"},
              {"1,2\n3,\n", "f.csv, line 2: a value is missing"},
              {"1,2\n3,4\n5,six\n", "f.csv, line 3: 'six' is not a number"},
              {"1,2 3\n", "f.csv, line 1: '2 3' is not a number"},
              {"1,nan\n", "f.csv, line 1: 'nan' is not a number"},
              {"1e999\n", "f.csv, line 1: '1e999' is not a number"},
              {"1,2\n3,4,5\n", "f.csv, line 2: there are 3 values here and 2 in the first line"}};
  for (const auto& row : rows) {
    std::istringstream in(row.content);
    try {
      read_csv(in, "f.csv");
      ADD_FAILURE() << "accepted: " << row.content;
    } catch (const BadFile& wrong) {
      EXPECT_STREQ(wrong.what(), row.message);
    }
  }
  EXPECT_THROW(read_csv(std::filesystem::path("/no/such.csv")), BadFile);
}

TEST(Tour, ChecksFailBeyondTheBoundAndOnNaN) {
  Report report;
  report.check("within", 1, 1);
  report.check("exact where nothing is allowed", 0, 0);
  EXPECT_EQ(report.failures(), 0);
  report.check("beyond", 1.1, 1);
  report.check("error is no number", NAN, 1);
  report.check("bound is no number", 0, NAN);
  EXPECT_EQ(report.failures(), 3);
  EXPECT_EQ(report.checks(), 5);
}

TEST(Tour, WorstGoesByRatioAndKeepsNaN) {
  Worst worst;
  worst.see(0, 0);
  worst.see(5, 100);
  worst.see(2, 3);
  worst.see(6, 100);
  EXPECT_EQ(worst.error(), 2);
  EXPECT_EQ(worst.bound(), 3);
  worst.see(1e-300, 0);
  EXPECT_EQ(worst.bound(), 0);
  worst.see(NAN, 1);
  worst.see(9, 1);
  EXPECT_TRUE(std::isnan(worst.error()));
}

TEST(Tour, Options) {
  const auto good = std::get<Options>(parse_options({"2", "--data", "d", "--out", "o", "1"}, 3));
  EXPECT_EQ(good.data, "d");
  EXPECT_EQ(good.out, "o");
  EXPECT_EQ(good.chapters, (std::vector<int>{2, 1}));
  EXPECT_EQ(std::get<Options>(parse_options({"--matrix", "m"}, 4)).chapters, (std::vector<int>{4}));
  EXPECT_EQ(std::get<Options>(parse_options({"1", "--matrix", "m"}, 4)).chapters, (std::vector<int>{1}));
  for (const std::vector<std::string>& bad : {std::vector<std::string>{"0"}, {"4"}, {"1x"}, {""}, {"--out"}, {"--matrix"}})
    EXPECT_TRUE(std::holds_alternative<std::string>(parse_options(bad, 3))) << bad[0];
}

}  // namespace
