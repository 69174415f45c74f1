#include "outer/sparse/description.h"

#include <string.h>

namespace orb {
namespace {

char capital(char letter) { return letter >= 'a' && letter <= 'z' ? char(letter - 'a' + 'A') : letter; }
char small(char capital) { return capital == '_' ? '_' : char(capital - 'A' + 'a'); }

bool among(char letter, const char* letters) { return letter && strchr(letters, letter); }

}  // namespace

Description read_description(const char* six) {
  const Description none{};
  Description d{capital(six[0]), '_', '_', false};
  if (!among(d.kind, "GSHTAD")) return none;
  if (among(d.kind, "SHTA") && !among(d.triangle = capital(six[1]), "LU")) return none;
  if (among(d.kind, "SHTD") && !among(d.diagonal = capital(six[2]), "NU")) return none;
  if (!among(capital(six[3]), "CF")) return none;
  d.from_one = capital(six[3]) == 'F';
  return d;
}

char read_operation(char letter, bool is_complex) {
  const char c = capital(letter);
  if (!among(c, "NTCS")) return 0;
  return is_complex ? c : c == 'C' ? 'T' : c == 'S' ? 'N' : c;
}

// Kinds that are their own mirror image need no transposed kernel: transposing is nothing (symmetric,
// diagonal), a change of sign (antisymmetric), or conjugation (Hermitian).
Choice choose(const Description& matrix, char operation, bool is_complex) {
  const bool transposes = operation == 'T' || operation == 'C',
             conjugates = operation == 'C' || operation == 'S';
  const char kind = matrix.kind == 'H' && !is_complex ? 's' : small(matrix.kind);
  char op = small(operation);
  if (kind == 'h') op = transposes != conjugates ? 't' : 'n';
  if (kind == 's' || kind == 'a' || kind == 'd') op = conjugates ? 'c' : 'n';
  if (kind == 'd' && matrix.diagonal == 'U') op = 'n';
  const char base = matrix.from_one ? '1' : '0', layout = matrix.from_one ? 'f' : 'c';
  return {{0, base, op, kind, small(matrix.triangle), small(matrix.diagonal), layout},
          kind == 'a' && transposes};
}

}  // namespace orb
