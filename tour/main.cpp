// orb-tour: the library at work on real data. Exit status 0: every check held; 1: one did not; 2: the tour
// could not be made at all.
#include <algorithm>
#include <cstdio>
#include <exception>

#include "tour/chapter.h"
#include "tour/options.h"
#include "tour/progress.h"

namespace {

using namespace orb::tour;

constexpr Chapter chapters[] = {
    {1, "Dense matrices: a volcano in a few numbers", dense},
    {2, "Regression: what conditioning costs", regression},
    {3, "Spectrum: the cycle of the sun", spectrum},
    {sparse_chapter, "Sparse matrices: a structure under load", sparse},
};

bool exists(int number) {
  return std::any_of(std::begin(chapters), std::end(chapters), [=](auto& c) { return c.number == number; });
}

bool is_chosen(const Options& options, const Chapter& chapter) {
  const auto& chosen = options.chapters;
  return chosen.empty() || std::find(chosen.begin(), chosen.end(), chapter.number) != chosen.end();
}

int run(const Options& options) {
  const Stopwatch watch;
  Report report;
  introduce(report);
  std::filesystem::create_directories(options.out);
  Tour tour{options.data, options.out, report, options.matrix};
  for (const Chapter& chapter : chapters) {
    if (!is_chosen(options, chapter)) continue;
    report.heading(chapter.number, chapter.title);
    chapter.run(tour);
  }
  if (report.failures())
    std::printf("\nThe tour failed: %d of %d checks are beyond their bounds; they are marked WRONG above.\n",
                report.failures(), report.checks());
  else
    std::printf("\nAll %d checks hold. The tour took %.1f s.\n", report.checks(), watch.seconds());
  return report.failures() ? 1 : 0;
}

}  // namespace

int main(int count, char** arguments) {
  const auto parsed = parse_options({arguments + 1, arguments + count}, std::end(chapters)[-1].number);
  if (const auto* wrong = std::get_if<std::string>(&parsed)) {
    std::fprintf(stderr, "orb-tour: %s\n%s", wrong->c_str(), usage);
    return 2;
  }
  const Options& options = std::get<Options>(parsed);
  if (options.help) return std::fputs(usage, stdout), 0;
  for (int number : options.chapters)
    if (!exists(number)) return std::fprintf(stderr, "orb-tour: there is no chapter %d\n", number), 2;
  try {
    return run(options);
  } catch (const std::exception& failure) {
    std::fflush(stdout);
    std::fprintf(stderr, "orb-tour: %s\n", failure.what());
    return 2;
  }
}
