#include "tests/abi/elf_file.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace orb::test {

ElfFile::ElfFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  bytes_.assign(std::istreambuf_iterator<char>(in), {});
  if (bytes_.size() < sizeof(Elf32_Ehdr) || bytes_.compare(0, 4, ELFMAG) != 0 ||
      bytes_[EI_CLASS] != ELFCLASS32)
    throw std::runtime_error(path + " is no 32-bit ELF file");
}

const Elf32_Shdr* ElfFile::header(int i) const {
  const auto* e = at<Elf32_Ehdr>(0);
  return at<Elf32_Shdr>(e->e_shoff + size_t(i) * e->e_shentsize);
}

const Elf32_Shdr* ElfFile::find(unsigned type) const {
  for (int i = 0; i < at<Elf32_Ehdr>(0)->e_shnum; ++i)
    if (header(i)->sh_type == type) return header(i);
  return nullptr;
}

std::vector<ElfFile::Section> ElfFile::sections() const {
  std::vector<Section> list;
  const auto* e = at<Elf32_Ehdr>(0);
  for (int i = 0; i < e->e_shnum; ++i)
    list.push_back(
        {text(*header(e->e_shstrndx), header(i)->sh_name), header(i)->sh_flags, header(i)->sh_size});
  return list;
}

std::set<int> ElfFile::dynamic_tags() const {
  std::set<int> tags;
  const auto* s = find(SHT_DYNAMIC);
  for (const auto* d = at<Elf32_Dyn>(s->sh_offset); d->d_tag != DT_NULL; ++d) tags.insert(d->d_tag);
  return tags;
}

std::set<std::string> ElfFile::needed() const {
  std::set<std::string> names;
  const auto* s = find(SHT_DYNAMIC);
  for (const auto* d = at<Elf32_Dyn>(s->sh_offset); d->d_tag != DT_NULL; ++d)
    if (d->d_tag == DT_NEEDED) names.insert(text(*header(int(s->sh_link)), d->d_un.d_val));
  return names;
}

std::set<std::string> ElfFile::symbols(bool defined) const {
  std::set<std::string> names;
  const auto* s = find(SHT_DYNSYM);
  const auto* symbol = at<Elf32_Sym>(s->sh_offset);
  for (size_t i = 1; i < s->sh_size / sizeof *symbol; ++i)
    if ((symbol[i].st_shndx != SHN_UNDEF) == defined)
      names.insert(text(*header(int(s->sh_link)), symbol[i].st_name));
  return names;
}

std::set<std::string> ElfFile::exported() const { return symbols(true); }
std::set<std::string> ElfFile::undefined() const { return symbols(false); }

std::vector<std::string> ElfFile::versions_defined() const {
  std::vector<std::string> names;
  if (const auto* s = find(SHT_GNU_verdef)) names.push_back(text(*header(int(s->sh_link)), 0));
  return names;
}

std::set<std::string> ElfFile::replaceable() const {
  std::set<std::string> names;
  const auto* e = at<Elf32_Ehdr>(0);
  for (int i = 0; i < e->e_shnum; ++i) {
    if (header(i)->sh_type != SHT_REL) continue;
    const auto* symbols_header = header(int(header(i)->sh_link));
    const auto* rel = at<Elf32_Rel>(header(i)->sh_offset);
    for (size_t k = 0; k < header(i)->sh_size / sizeof *rel; ++k) {
      const auto* symbol = at<Elf32_Sym>(symbols_header->sh_offset) + ELF32_R_SYM(rel[k].r_info);
      if (ELF32_R_SYM(rel[k].r_info) != 0 && symbol->st_shndx != SHN_UNDEF)
        names.insert(text(*header(int(symbols_header->sh_link)), symbol->st_name));
    }
  }
  return names;
}

}  // namespace orb::test
