// What liborb.so shows to others, read off the finished file.
#include <fstream>
#include <iterator>
#include <regex>

#include "gtest/gtest.h"
#include "tests/abi/elf_file.h"

namespace {

using Names = std::set<std::string>;

void add_declared(Names& names, const std::string& header, const char* pattern) {
  std::ifstream in(HEADERS "/" + header);
  const std::string text(std::istreambuf_iterator<char>(in), {});
  const std::regex name(pattern);
  for (std::sregex_iterator i(text.begin(), text.end(), name), end; i != end; ++i) names.insert((*i)[1]);
}

class Outer : public testing::Test {
 protected:
  orb::test::ElfFile elf{LIBRARY};
};

TEST_F(Outer, ExportsWhatItsHeadersDeclare) {
  Names declared = {"i_malloc", "i_free", "RowMajorStrg"};
  for (const char* header : {"blas.h", "fortran_level2.h", "fortran_level3.h"})
    add_declared(declared, header, "\\b([a-z]\\w*_)\\(");
  for (const char* header : {"cblas.h", "cblas_level2.h", "cblas_level3.h"})
    add_declared(declared, header, "\\b(cblas_\\w+)\\(");
  add_declared(declared, "services.h", "\\b(orb_\\w+)\\(");
  add_declared(declared, "lapack.h", "\\b(orb_\\w+)\\(");
  add_declared(declared, "dfti.h", "\\b(Dfti\\w+)\\(");
  add_declared(declared, "orb.h", "\\b(orb_\\w+)\\(");
  add_declared(declared, "sparse.h", "\\b(orb_\\w+)\\(");
  EXPECT_EQ(elf.exported(), declared);
  EXPECT_GT(declared.size(), 350u);
  EXPECT_TRUE(elf.versions_defined().empty());
}

TEST_F(Outer, NeedsNoCxxRunTime) {
  Names needed = elf.needed();
  for (const char* allowed : {"libc.so.6", "libm.so.6", "ld-linux.so.2", "libgomp.so.1", "libgcc_s.so.1"})
    needed.erase(allowed);
  EXPECT_EQ(needed, Names());
  EXPECT_FALSE(elf.dynamic_tags().count(DT_TEXTREL));
}

TEST_F(Outer, LetsOnlyTheErrorHandlersBeReplaced) {
  EXPECT_EQ(elf.replaceable(), (Names{"xerbla_", "cblas_xerbla"}));
}

}  // namespace
