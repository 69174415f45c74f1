// The reader of Matrix Market files: what it takes, and how it answers what it does not.
#include "tour/matrix_market.h"

#include <sstream>

#include "gtest/gtest.h"

using namespace orb::tour;

namespace {

MarketMatrix read(const std::string& content) {
  std::istringstream in(content);
  return read_market(in, "f.mtx");
}
std::string shown(const MarketMatrix& a) {
  std::ostringstream out;
  out << a.rows << 'x' << a.columns << ' ' << int(a.symmetry) << a.is_complex;
  for (const MarketEntry& e : a.entries) out << ' ' << e.row << ',' << e.column << '=' << e.value;
  return out.str();
}

TEST(MatrixMarket, EveryFormatFieldAndSymmetry) {
  const struct {
    const char *content, *shown;
  } rows[] = {
      {"%%MatrixMarket matrix coordinate real general\n% words\n\n2 3 2\n1 1 1.5\n2 3 -2e1\n",
       "2x3 00 0,0=(1.5,0) 1,2=(-20,0)"},
      {"%%matrixmarket MATRIX Coordinate Real SYMMETRIC\r\n2 2 2\r\n1 1 +1.0D+02\r\n2 1 3\r\n",
       "2x2 10 0,0=(100,0) 1,0=(3,0)"},
      {"%%MatrixMarket matrix coordinate pattern general\n1 1 1\n1 1", "1x1 00 0,0=(1,0)"},
      {"%%MatrixMarket matrix coordinate integer skew-symmetric\n2 2 1\n\n  2   1\t-7\n\n",
       "2x2 20 1,0=(-7,0)"},
      {"%%MatrixMarket matrix coordinate complex hermitian\n1 1 1\n1 1 2 0\n", "1x1 31 0,0=(2,0)"},
      {"%%MatrixMarket matrix array real general\n2 2\n1\n2\n3\n4\n",
       "2x2 00 0,0=(1,0) 1,0=(2,0) 0,1=(3,0) 1,1=(4,0)"},
      {"%%MatrixMarket matrix array complex symmetric\n2 2\n1 1\n2 2\n3 3\n",
       "2x2 11 0,0=(1,1) 1,0=(2,2) 1,1=(3,3)"},
      {"%%MatrixMarket matrix array real skew-symmetric\n3 3\n1\n2\n3\n",
       "3x3 20 1,0=(1,0) 2,0=(2,0) 2,1=(3,0)"},
  };
  for (const auto& row : rows) EXPECT_EQ(shown(read(row.content)), row.shown);
}

TEST(MatrixMarket, BadFilesAreAnsweredWithLineAndReason) {
  const std::string general = "%%MatrixMarket matrix coordinate real general\n";
  const std::string symmetric = "%%MatrixMarket matrix coordinate real symmetric\n";
  const std::pair<std::string, const char*> rows[] = {
      {"", "f.mtx: the file is empty"},
      {"1 1 1\n", "f.mtx, line 1: the file does not begin with %%MatrixMarket"},
      {"%%MatrixMarket matrix coordinate real\n",
       "f.mtx, line 1: %%MatrixMarket and four words are expected"},
      {"%%MatrixMarket vector coordinate real general\n", "f.mtx, line 1: 'vector' is not known here"},
      {"%%MatrixMarket matrix coordinate quaternion general\n",
       "f.mtx, line 1: 'quaternion' is not known here"},
      {"%%MatrixMarket matrix array pattern general\n", "f.mtx, line 1: an array has values, not a pattern"},
      {"%%MatrixMarket matrix array real hermitian\n",
       "f.mtx, line 1: a Hermitian matrix has complex values"},
      {general + "% only words\n", "f.mtx, line 2: the file ends before the sizes"},
      {general + "2 2\n", "f.mtx, line 2: 3 words are expected, not 2"},
      {general + "0 2 1\n", "f.mtx, line 2: '0' is not a number of rows"},
      {general + "2 2.5 1\n", "f.mtx, line 2: '2.5' is not a number of columns"},
      {general + "2 2 99999999999\n", "f.mtx, line 2: '99999999999' is not a number of entries"},
      {symmetric + "2 3 1\n", "f.mtx, line 2: a symmetric matrix is square, not 2 x 3"},
      {general + "2 2 2\n1 1 1\n", "f.mtx, line 3: the file ends before entry 2 of 2"},
      {general + "2 2 1\n\n3 1 1\n", "f.mtx, line 4: there is no row 3"},
      {general + "2 2 1\n1 x 1\n", "f.mtx, line 3: 'x' is not the number of a column"},
      {general + "2 2 1\n1 1 nan\n", "f.mtx, line 3: 'nan' is not a number"},
      {general + "2 2 1\n1 1 1e999\n", "f.mtx, line 3: '1e999' is not a number"},
      {general + "2 2 1\n1 1 1 1\n", "f.mtx, line 3: 3 words are expected, not 4"},
      {general + "2 2 1\n1 1 1\n2 2 2\n", "f.mtx, line 4: there is more behind the last entry"},
      {symmetric + "2 2 1\n1 2 1\n", "f.mtx, line 3: of a symmetric matrix only the lower triangle is given"},
      {"%%MatrixMarket matrix coordinate real skew-symmetric\n2 2 1\n2 2 1\n",
       "f.mtx, line 3: a skew-symmetric matrix has no diagonal"},
      {"%%MatrixMarket matrix array real general\n2 1\n1\n",
       "f.mtx, line 3: the file ends before element (2, 1)"},
  };
  for (const auto& [content, message] : rows) {
    try {
      read(content);
      ADD_FAILURE() << "accepted: " << content;
    } catch (const BadFile& wrong) {
      EXPECT_STREQ(wrong.what(), message);
    }
  }
  EXPECT_THROW(read_market(std::filesystem::path("/no/such.mtx")), BadFile);
  EXPECT_THROW(read_market(std::filesystem::path("/")), BadFile);
}

}  // namespace
