// Every face of levels 2 and 3 with each of its checked arguments bad in turn: the library's own handlers
// must name the routine and the place in the caller's list, and nothing may be touched.
#include <algorithm>

#include "gtest/gtest.h"
#include "orb/blas.h"
#include "orb/cblas.h"
#include "tests/support/call.h"

using namespace orb::test;

namespace {

// The arguments of a routine behind its name, in the Fortran order, a letter each:
//   T U D S   transpose, triangle, diagonal, side        n   a dimension, bad below 0
//   l         a leading dimension, bad below 3           i   an increment, bad at 0
//   a r       a factor: of the matrix's type, real       .   an array
struct Routine {
  const char* name;
  const char* arguments;
  void *fortran, *c;
  char type;
};

#define ROUTINE(t, routine, arguments)                                \
  Routine {                                                           \
#t #routine, arguments, reinterpret_cast < void*>(t##routine##_), \
        reinterpret_cast < void*>(cblas_##t##routine), (#t)[0]        \
  }
#define REAL(routine, arguments) ROUTINE(s, routine, arguments), ROUTINE(d, routine, arguments)
#define COMPLEX(routine, arguments) ROUTINE(c, routine, arguments), ROUTINE(z, routine, arguments)
#define ALL(routine, arguments) REAL(routine, arguments), COMPLEX(routine, arguments)

const Routine routines[] = {
    ALL(gemv, "Tnna.l.ia.i"),       ALL(gbmv, "Tnnnna.l.ia.i"),  REAL(ger, "nna.i.i.l"),
    COMPLEX(geru, "nna.i.i.l"),     COMPLEX(gerc, "nna.i.i.l"),  REAL(symv, "Una.l.ia.i"),
    COMPLEX(hemv, "Una.l.ia.i"),    REAL(sbmv, "Unna.l.ia.i"),   COMPLEX(hbmv, "Unna.l.ia.i"),
    REAL(spmv, "Una..ia.i"),        COMPLEX(hpmv, "Una..ia.i"),  REAL(syr, "Una.i.l"),
    COMPLEX(her, "Unr.i.l"),        REAL(spr, "Una.i."),         COMPLEX(hpr, "Unr.i."),
    REAL(syr2, "Una.i.i.l"),        COMPLEX(her2, "Una.i.i.l"),  REAL(spr2, "Una.i.i."),
    COMPLEX(hpr2, "Una.i.i."),      ALL(trmv, "UTDn.l.i"),       ALL(trsv, "UTDn.l.i"),
    ALL(tbmv, "UTDnn.l.i"),         ALL(tbsv, "UTDnn.l.i"),      ALL(tpmv, "UTDn..i"),
    ALL(tpsv, "UTDn..i"),           ALL(gemm, "TTnnna.l.la.l"),  COMPLEX(gemm3m, "TTnnna.l.la.l"),
    ALL(gemmt, "UTTnna.l.la.l"),    ALL(symm, "SUnna.l.la.l"),   COMPLEX(hemm, "SUnna.l.la.l"),
    ALL(syrk, "UTnna.la.l"),        COMPLEX(herk, "UTnnr.lr.l"), ALL(syr2k, "UTnna.l.la.l"),
    COMPLEX(her2k, "UTnna.l.lr.l"), ALL(trmm, "SUTDnna.l.l"),    ALL(trsm, "SUTDnna.l.l"),
};

// Memory that a routine would change if it went on.
struct Arena {
  double memory[64];
  Arena() { std::fill(std::begin(memory), std::end(memory), 0.5); }
  bool untouched() const {
    return std::all_of(std::begin(memory), std::end(memory), [](double x) { return x == 0.5; });
  }
};

struct Value {
  int number;
  char letter;
};
Value good_value(char code) {
  switch (code) {
    case 'T':
      return {CblasNoTrans, 'N'};
    case 'U':
      return {CblasLower, 'L'};
    case 'D':
      return {CblasNonUnit, 'N'};
    case 'S':
      return {CblasLeft, 'L'};
    default:
      return {code == 'n' ? 3 : code == 'l' ? 8 : 1, 0};
  }
}
Value bad_value(char code) { return {code == 'n' ? -1 : code == 'l' ? 2 : 0, 'x'}; }
bool is_option(char code) { return strchr("TUDS", code); }

// What the handler says of a call with the argument at `bad` (from 0) bad.
std::string complaint(const Routine& r, size_t bad, int layout, Arena& arena) {
  std::vector<Value> values;
  for (size_t i = 0; r.arguments[i]; ++i)
    values.push_back(i == bad ? bad_value(r.arguments[i]) : good_value(r.arguments[i]));
  Words words;
  if (layout) words.push(layout);
  for (size_t i = 0; r.arguments[i]; ++i) {
    const char code = r.arguments[i];
    if (code == '.')
      words.push(&arena.memory);
    else if (code == 'a' || code == 'r') {
      const bool complex = (r.type == 'c' || r.type == 'z') && code == 'a',
                 twofold = r.type == 'd' || r.type == 'z';
      if (!layout || complex)
        words.push(&arena.memory);
      else if (twofold)
        words.push(2.0);
      else
        words.push(2.0f);
    } else if (!layout)
      words.push(is_option(code) ? static_cast<const void*>(&values[i].letter) : &values[i].number);
    else
      words.push(values[i].number);
  }
  testing::internal::CaptureStderr();
  orb_test_call_words(layout ? r.c : r.fortran, words.at, words.count, 4 * (bad % 4));
  fflush(stderr);
  return testing::internal::GetCapturedStderr();
}

std::string capitals(std::string name) {
  std::transform(name.begin(), name.end(), name.begin(), toupper);
  return name;
}

TEST(Refusals, EachBadArgumentIsNamedAndNothingTouched) {
  size_t refused = 0;
  for (const Routine& r : routines)
    for (size_t i = 0; r.arguments[i]; ++i)
      if (!strchr("ar.", r.arguments[i])) {
        SCOPED_TRACE(testing::Message() << r.name << " argument " << i + 1);
        Arena arena;
        char text[80];
        snprintf(text, sizeof text, " ** On entry to %-6s parameter number %2zu had an illegal value\n",
                 capitals(r.name).c_str(), i + 1);
        EXPECT_EQ(complaint(r, i, 0, arena), text);
        snprintf(text, sizeof text, "Parameter %zu to routine cblas_%s was incorrect\n", i + 2, r.name);
        for (int layout : {CblasColMajor, CblasRowMajor}) {
          const std::string said = complaint(r, i, layout, arena);
          EXPECT_EQ(said.substr(0, strlen(text)), text) << "layout " << layout;
          EXPECT_EQ(said.find("Illegal") != std::string::npos, is_option(r.arguments[i]));
        }
        EXPECT_TRUE(arena.untouched());
        ++refused;
      }
  EXPECT_GT(refused, 600u);
}

TEST(Refusals, ALayoutThatIsNoneComesFirst) {
  for (const Routine& r : routines) {
    Arena arena;
    const std::string said = complaint(r, 0, 100, arena);
    EXPECT_EQ(said, "Parameter 1 to routine cblas_" + std::string(r.name) +
                        " was incorrect\nIllegal layout setting, 100\n");
    EXPECT_TRUE(arena.untouched());
  }
}

// The letters that only some types know.
TEST(Refusals, UpdatesKnowTheirTransposes) {
  const int n = 2, ld = 2;
  orb_complex_double c[4] = {}, one = {1, 0};
  const double real = 1;
  testing::internal::CaptureStderr();
  zsyrk_("L", "C", &n, &n, &one, c, &ld, &one, c, &ld);
  zherk_("L", "T", &n, &n, &real, c, &ld, &real, c, &ld);
  cblas_zsyrk(CblasRowMajor, CblasLower, CblasConjTrans, n, n, &one, c, ld, &one, c, ld);
  cblas_zher2k(CblasRowMajor, CblasLower, CblasTrans, n, n, &one, c, ld, c, ld, 1, c, ld);
  fflush(stderr);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            " ** On entry to ZSYRK  parameter number  2 had an illegal value\n"
            " ** On entry to ZHERK  parameter number  2 had an illegal value\n"
            "Parameter 3 to routine cblas_zsyrk was incorrect\n"
            "Parameter 3 to routine cblas_zher2k was incorrect\n");
}

}  // namespace
