#include "verifier/institutions.h"

#include <algorithm>
#include <array>

namespace nvrandom::verifier {

namespace {

// Canadian banks and credit-union centrals by institution number, with the account lengths
// where they are known for certain; elsewhere any length from 7 to 12 digits.
constexpr std::array kInstitutions = {
    Institution{"001", "Bank of Montreal", AccountRule::kDigits, Lengths(7)},
    Institution{kBusinessNumberRegistry, "Business number registry", AccountRule::kBusinessProgram,
                0},
    Institution{"002", "Bank of Nova Scotia", AccountRule::kDigits, Lengths(7) | Lengths(12)},
    Institution{"003", "Royal Bank of Canada", AccountRule::kDigits, Lengths(7)},
    Institution{"004", "Toronto-Dominion Bank", AccountRule::kDigits, Lengths(7)},
    Institution{"006", "National Bank of Canada", AccountRule::kDigits, Lengths(7)},
    Institution{"010", "Canadian Imperial Bank of Commerce", AccountRule::kDigits, Lengths(7)},
    Institution{"016", "HSBC Bank Canada", AccountRule::kDigits, kAnyAccountLength},
    Institution{"030", "Canadian Western Bank", AccountRule::kDigits, kAnyAccountLength},
    Institution{"039", "Laurentian Bank of Canada", AccountRule::kDigits, kAnyAccountLength},
    Institution{"117", "Government of Canada", AccountRule::kDigits, kAnyAccountLength},
    Institution{"177", "Bank of Canada", AccountRule::kDigits, kAnyAccountLength},
    Institution{"219", "ATB Financial", AccountRule::kDigits, kAnyAccountLength},
    Institution{"241", "Bank of America, National Association", AccountRule::kDigits,
                kAnyAccountLength},
    Institution{"260", "Citibank, N.A.", AccountRule::kDigits, kAnyAccountLength},
    Institution{"270", "JPMorgan Chase Bank, N.A.", AccountRule::kDigits, kAnyAccountLength},
    Institution{"303", "Amex Bank of Canada", AccountRule::kDigits, kAnyAccountLength},
    Institution{"309", "Citizens Bank of Canada", AccountRule::kDigits, kAnyAccountLength},
    Institution{"310", "First Nations Bank of Canada", AccountRule::kDigits, kAnyAccountLength},
    Institution{"328", "Citibank Canada", AccountRule::kDigits, kAnyAccountLength},
    Institution{"540", "Manulife Bank of Canada", AccountRule::kDigits, kAnyAccountLength},
    Institution{"614", "Tangerine Bank", AccountRule::kDigits, kAnyAccountLength},
    Institution{"809", "Central 1 Credit Union (British Columbia)", AccountRule::kDigits,
                kAnyAccountLength},
    Institution{"815", "Caisses Desjardins du Quebec", AccountRule::kDigits, kAnyAccountLength},
    Institution{"828", "Central 1 Credit Union (Ontario)", AccountRule::kDigits, kAnyAccountLength},
    Institution{"829", "Caisses Desjardins de l'Ontario", AccountRule::kDigits, kAnyAccountLength},
    Institution{"837", "Meridian Credit Union", AccountRule::kDigits, kAnyAccountLength},
    Institution{"839", "Credit Union Atlantic Central (Nova Scotia)", AccountRule::kDigits,
                kAnyAccountLength},
    Institution{"842", "Alterna Savings and Credit Union", AccountRule::kDigits, kAnyAccountLength},
    Institution{"865", "Caisses populaires acadiennes", AccountRule::kDigits, kAnyAccountLength},
    Institution{"879", "Credit Union Central of Manitoba", AccountRule::kDigits, kAnyAccountLength},
    Institution{"889", "Credit Union Central of Saskatchewan", AccountRule::kDigits,
                kAnyAccountLength},
    Institution{"899", "Credit Union Central Alberta", AccountRule::kDigits, kAnyAccountLength},
};

constexpr bool OrderedByNumber() {
  for (size_t i = 1; i < kInstitutions.size(); ++i) {
    if (!(kInstitutions[i - 1].number < kInstitutions[i].number)) return false;
  }
  return true;
}
static_assert(OrderedByNumber(), "the lookup searches the table by halves");

}  // namespace

std::span<const Institution> KnownInstitutions() {
  return kInstitutions;
}

const Institution* FindInstitution(std::string_view number) {
  const auto it = std::lower_bound(
      kInstitutions.begin(), kInstitutions.end(), number,
      [](const Institution& row, std::string_view key) { return row.number < key; });
  return (it != kInstitutions.end() && it->number == number) ? &*it : nullptr;
}

}  // namespace nvrandom::verifier
