#pragma once

#include <optional>
#include <string>

#include "core/company/session.h"

/// The last door before the file. Windows, lists, imports and undo pass it alike: a commit that changes money on or before
/// the closing date, or of a kind of document that the user has no right to, is refused whole with error 3351.
/// What later days say of an earlier document (paid, received, cleared, its number printed, a name carried on) may be written.
namespace tallymere {

void Guard_Commits(Session& session);  ///< of the open company

/// The last day of the closed books; none: they are open.
std::optional<Date> Closing_Date(store::Database& company);
/// Whether the closing date is this user's to set.
bool May_Close_Books(const Session& session);

/// While it lives the program works for everybody: due repeats are entered whoever starts it.
class Unattended {
 public:
  explicit Unattended(Session& session) : session_(session), before_(session.unattended) { session.unattended = true; }
  ~Unattended() { session_.unattended = before_; }
  Unattended(const Unattended&) = delete;
  Unattended& operator=(const Unattended&) = delete;

 private:
  Session& session_;
  bool before_;
};

}  // namespace tallymere
