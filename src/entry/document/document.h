#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/company/session.h"
#include "core/ledger/transaction_writer.h"

/// What the entry windows share: how a save ends, and which window enters what.
namespace tallymere {

/// Information boxes are what nearly all mistakes get.
Fault Mistake(std::string text, std::string title, std::string control);
/// "Transaction does not Balance" when the lines do not add up to the document's amount.
std::optional<Fault> Balance_Fault(Money lines, Money amount, std::string control);

/// How a save ended. `ok` lets the window close or move on, also when there was nothing to save.
struct SaveResult {
  std::optional<Fault> fault = {};        ///< the user's mistake; nothing was written
  std::optional<Conflict> conflict = {};  ///< another user's work; nothing was written
  bool written = false;
  bool declined = false;  ///< the user thought better of it; nothing was written

  bool ok() const { return !fault && !conflict && !declined; }
};

/// Whether a save has made a category since: the " - Other" child of one that it posts to.
class CategoriesMade {
 public:
  explicit CategoriesMade(Session& session) : session_(session), newest_(Newest()) {}
  bool any() const { return Newest() != newest_; }

 private:
  int64_t Newest() const;

  Session& session_;
  int64_t newest_;
};

/// A transaction as one speaks of it: "Check 1042 to Acme Supply for $145.50".
std::string Spoken(const std::string& Type, const std::string& Number, const std::string& Name,
                   std::optional<Money> amount);

/// Asks whether to delete what is `spoken` of, and asks again about what the bank has cleared. Enter keeps it.
bool Confirm_Delete(Prompts& prompts, const std::string& question, bool cleared, const std::string& spoken,
                    const std::string& title = "Confirm Delete");

/// The window that enters transactions of this type; "" when there is none to go to.
std::string_view Entry_Window(std::string_view Type);

inline constexpr const char* ball_bounce = "ball_bounce.wav";
inline constexpr const char* stapler = "stapler.wav";

}  // namespace tallymere
