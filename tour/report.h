// What the tour tells its reader. A check that fails is told in a plain sentence and makes the tour fail.
#pragma once

#include <string>

namespace orb::tour {

// As printf, into a string.
[[gnu::format(printf, 1, 2)]] std::string text(const char* format, ...);

// Of many errors, the one that stands worst against its own bound. Once one is not a number, that one stays.
class Worst {
 public:
  void see(double error, double bound) {
    const double ratio = error == 0 && bound == 0 ? 0 : error / bound;
    if (ratio <= ratio_ || ratio_ != ratio_) return;
    error_ = error, bound_ = bound, ratio_ = ratio;
  }
  double error() const { return error_; }
  double bound() const { return bound_; }

 private:
  double error_ = 0, bound_ = 0, ratio_ = -1;
};

class Report {
 public:
  void heading(int number, const std::string& title);
  void paragraph(const std::string& words);  // wrapped at the width of the page
  void line(const std::string& words);       // as it stands
  void gap();
  void fact(const std::string& name, const std::string& value);
  // The error against the bound that theory gives. Anything that is not a number fails.
  void check(const std::string& what, double error, double bound);
  void check(const std::string& what, const Worst& worst) { check(what, worst.error(), worst.bound()); }

  int checks() const { return checks_; }
  int failures() const { return failures_; }

 private:
  int checks_ = 0, failures_ = 0;
};

}  // namespace orb::tour
