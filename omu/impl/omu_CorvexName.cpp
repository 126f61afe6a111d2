#include <nex_Exception.h>
#include <omu_CharClass.h>
#include <omu_CorNameErrorException.h>
#include <omu_CorvexName.h>
#include <utl_Catenator.h>

#include <array>

namespace {
constexpr std::string_view kLeading = "^[^0-9]";
constexpr std::string_view kWide = R"([:\$\\&\*~! \(\)\[\]\{\}\|;\'\`\< >\?\/. ])";
constexpr std::string_view kNarrow = R"([\$\\&\*~!\(\)\[\]\{\}\|;\'\`\<>\?\/.])";

// One kind's rules, folded into byte sets: forbidden first bytes, last bytes, and bytes
// anywhere. Every rule of a kind raises the same code, so the order of the tests cannot
// change the outcome once the empty name has been tested first.
struct Rules {
  int maxLength;
  int errorCode;
  omu_CharClass first;
  omu_CharClass last;
  omu_CharClass anywhere;
};

const std::array<Rules, 8>& AllRules() {
  static const std::array<Rules, 8> rules = [] {
    const omu_CharClass none = omu_CharClass::Of("");
    const omu_CharClass digitFirst = ~omu_CharClass(kLeading);  // the leading pattern fails
    const omu_CharClass wide(kWide);
    const omu_CharClass narrow(kNarrow);
    const omu_CharClass controls = omu_CharClass::Controls();
    const omu_CharClass underBlank = omu_CharClass::Of("_ ");
    const omu_CharClass quote = omu_CharClass::Of("\"");
    const Rules shortGeneral{38, 0, digitFirst | underBlank, underBlank,
                             omu_CharClass::Of("\".\\") | controls};
    return std::array<Rules, 8>{
        Rules{80, 0, digitFirst, none, omu_CharClass::Of("\".\\")},
        Rules{80, 2, omu_CharClass::Of("-"), none, quote | wide},
        Rules{80, 3, none, none, quote | narrow},
        shortGeneral,
        Rules{38, 2, omu_CharClass::Of("-_"), omu_CharClass::Of("_"), wide | quote | controls},
        Rules{38, 3, underBlank, underBlank, narrow | quote | controls},
        shortGeneral,
        Rules{256, 0, digitFirst | omu_CharClass::Of("-_ "), underBlank,
              omu_CharClass::Of("\".,\\") | controls},
    };
  }();
  return rules;
}

bool IsDigit(char c) noexcept { return c >= '0' && c <= '9'; }
bool IsUnderOrBlank(char c) noexcept { return c == '_' || c == ' '; }

// Puts the replacement at `at`, or deletes the byte there when the replacement is a full stop.
void Repair(std::string& name, std::size_t at, char replacement) {
  if (replacement == '.') {
    name.erase(at, 1);
  } else {
    name[at] = replacement;
  }
}

// One step of the repair loop; false when the name needs none.
bool RepairOnce(std::string& name, const char (&replacements)[6]) {
  if (IsDigit(name.front())) {
    if (replacements[0] == '.') {
      name.erase(0, 1);
    } else {
      name.insert(name.begin(), replacements[0]);
    }
    return true;
  }
  // Repairs 1-3: the first double quote, full stop, backslash.
  constexpr char kFaultByte[4] = {0, '"', '.', '\\'};
  for (int fault = 1; fault <= 3; ++fault) {
    const std::size_t at = name.find(kFaultByte[fault]);
    if (at != std::string::npos) {
      Repair(name, at, replacements[fault]);
      return true;
    }
  }
  if (IsUnderOrBlank(name.front())) {
    Repair(name, 0, replacements[4]);
    return true;
  }
  if (IsUnderOrBlank(name.back())) {
    Repair(name, name.size() - 1, replacements[5]);
    return true;
  }
  return false;
}

bool Breaks(const Rules& rules, std::string_view name) noexcept {
  if (name.size() > static_cast<std::size_t>(rules.maxLength)) return true;
  if (rules.first.Has(static_cast<unsigned char>(name.front()))) return true;
  if (rules.last.Has(static_cast<unsigned char>(name.back()))) return true;
  return rules.anywhere.Matches(name);
}
}  // namespace

omu_CorvexName::omu_CorvexName()
    : m_LeadingPattern(kLeading), m_WidePattern(kWide), m_NarrowPattern(kNarrow) {}

omu_CorvexName::omu_CorvexName(const cow_String& name, omu_CorvexNameEnum kind) : omu_CorvexName() {
  const int error = Check(name.View(), kind);
  if (error >= 0) NEX_THROW(omu_CorNameErrorException(error), "omu/impl/omu_CorvexName");
  m_Name = name;
  m_Kind = kind;
}

omu_CorvexName::omu_CorvexName(const char* name, omu_CorvexNameEnum kind)
    : omu_CorvexName(cow_String(name), kind) {}

int omu_CorvexName::Check(std::string_view name, omu_CorvexNameEnum kind) noexcept {
  if (kind < 0 || kind > omu_LONG_NAME) return -1;
  if (name.empty()) return 1;
  const Rules& rules = AllRules()[static_cast<std::size_t>(kind)];
  return Breaks(rules, name) ? rules.errorCode : -1;
}

bool omu_CorvexName::MakeLegalGuiName(cow_String& name, const char* replacements) {
  char chosen[6] = {'.', '.', '.', '.', '.', '.'};  // missing replacements delete
  for (int i = 0; replacements && i < 6 && replacements[i]; ++i) chosen[i] = replacements[i];
  std::string repaired(name.View().substr(0, 38));
  // Every repair of an acyclic set of replacements settles within a few steps per byte.
  for (std::size_t budget = 8 * (repaired.size() + 2); !repaired.empty() && budget > 0; --budget) {
    if (!RepairOnce(repaired, chosen)) {
      name = cow_String(std::string_view(repaired));
      return true;
    }
  }
  return false;
}

cow_String omu_CorvexName::QuoteIfNeeded(const cow_String& name) {
  if (name.IsEmpty()) return name;
  utl_Catenator result;
  std::string_view rest = name.View();
  for (bool first = true;; first = false) {
    const std::size_t dot = rest.find('.');
    const std::string_view piece = rest.substr(0, dot);
    if (!first) result << '.';
    const bool quoted = piece.size() >= 3 && piece.front() == '"' && piece.back() == '"';
    if (!quoted && piece.find_first_of(" '=,") != std::string_view::npos) {
      result << '"' << piece << '"';
    } else {
      result << piece;
    }
    if (dot == std::string_view::npos) break;
    rest.remove_prefix(dot + 1);
  }
  return result.String();
}
