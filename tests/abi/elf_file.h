// Reads what a 32-bit shared object says of itself.
#pragma once

#include <elf.h>

#include <set>
#include <string>
#include <vector>

namespace orb::test {

class ElfFile {
 public:
  explicit ElfFile(const std::string& path);

  struct Section {
    std::string name;
    unsigned flags, bytes;
  };
  std::vector<Section> sections() const;
  std::set<int> dynamic_tags() const;
  std::set<std::string> needed() const;               // DT_NEEDED
  std::set<std::string> exported() const;             // defined dynamic symbols
  std::set<std::string> undefined() const;            // undefined dynamic symbols
  std::vector<std::string> versions_defined() const;  // symbol versions that the object defines
  std::set<std::string> replaceable() const;          // own symbols that a relocation names
  bool calls_stay_inside() const { return replaceable().empty(); }

 private:
  template <class T>
  const T* at(size_t offset) const {
    return reinterpret_cast<const T*>(bytes_.data() + offset);
  }
  const Elf32_Shdr* header(int i) const;
  const Elf32_Shdr* find(unsigned type) const;
  std::set<std::string> symbols(bool defined) const;
  std::string text(const Elf32_Shdr& strings, size_t offset) const {
    return at<char>(strings.sh_offset + offset);
  }

  std::string bytes_;
};

}  // namespace orb::test
