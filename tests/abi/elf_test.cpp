// The rules of the kernel library, read off the finished file.
#include <fnmatch.h>

#include <fstream>
#include <sstream>

#include "gtest/gtest.h"
#include "tests/abi/elf_file.h"

namespace {

using Names = std::set<std::string>;
// One list a line.
const char* const families[] = {
    "frame",              //
    "blas-level1",        //
    "blas-level2",        //
    "blas-gemm-driver",   //
    "blas-gemm-kernels",  //
    "blas-level3",        //
    "blas-trmm",          //
    "blas-trsm",          //
    "dft-descriptor",
    "dft-commit",
    "dft-commit.optional",
    "dft-complex",
    "dft-complex.optional",
    "dft-real",
    "signal-any-length",
    "signal-any-length.optional",
    "signal-fft",
    "signal-fft.optional",
    "signal-power-of-two",
    "signal-power-of-two.optional",
    "signal-real",
    "signal-real.optional",
    "sparse-csr",         //
    "blas-lapack",        //
};

std::vector<std::string> lines_of(const std::string& list) {
  std::ifstream in(std::string(ORB_EXPORTS "/") + list + ".txt");
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);)
    if (!line.empty()) lines.push_back(line);
  EXPECT_FALSE(lines.empty()) << "no list " << list;
  return lines;
}

Names without(Names from, const Names& these) {
  for (const auto& n : these) from.erase(n);
  return from;
}

class Kernel : public testing::Test {
 protected:
  orb::test::ElfFile elf{ORB_KERNEL_LIBRARY};
};

TEST_F(Kernel, RunsNoCodeWhenLoadedOrUnloaded) {
  for (int tag : {DT_INIT, DT_FINI, DT_INIT_ARRAY, DT_FINI_ARRAY, DT_PREINIT_ARRAY})
    EXPECT_EQ(elf.dynamic_tags().count(tag), 0u) << "dynamic tag " << tag;
}

TEST_F(Kernel, NeedsOnlyTheCAndMathematicalLibraries) {
  EXPECT_EQ(without(elf.needed(), {"libc.so.6", "libm.so.6"}), Names());
  EXPECT_FALSE(elf.dynamic_tags().count(DT_TEXTREL));
}

TEST_F(Kernel, HasNoWritableData) {
  const Names linkage = {".dynamic", ".got", ".got.plt", ".data.rel.ro"};
  for (const auto& s : elf.sections())
    if ((s.flags & SHF_WRITE) && !linkage.count(s.name)) {
      EXPECT_EQ(s.bytes, 0u) << s.name;
    }
}

TEST_F(Kernel, ExportsExactlyItsLists) {
  Names listed;
  for (const char* family : families)
    for (const auto& name : lines_of(family)) EXPECT_TRUE(listed.insert(name).second) << name << " twice";
  EXPECT_EQ(without(listed, elf.exported()), Names()) << "listed, not exported";
  EXPECT_EQ(without(elf.exported(), listed), Names()) << "exported, not listed";
  EXPECT_TRUE(elf.versions_defined().empty());
}

TEST_F(Kernel, AsksOnlyForServicesUpwardEntriesAndTheRunTime) {
  std::vector<std::string> allowed = {"_GLOBAL_OFFSET_TABLE_"};
  for (const auto& line : lines_of("outer")) {
    std::istringstream words(line);
    std::string kind, name;
    words >> kind >> name;
    allowed.push_back(name);
  }
  for (const auto& name : elf.undefined()) {
    bool known = false;
    for (const auto& pattern : allowed) known |= fnmatch(pattern.c_str(), name.c_str(), 0) == 0;
    EXPECT_TRUE(known) << name;
  }
}

TEST_F(Kernel, BindsItsOwnCallsInside) { EXPECT_TRUE(elf.calls_stay_inside()); }

}  // namespace
