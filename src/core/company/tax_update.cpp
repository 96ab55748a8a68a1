#include "core/company/tax_update.h"

namespace tallymere {

bool Is_Tax_Check_Due(Session& session) {
  const auto updated = session.dbAccounts->value("SELECT Updated FROM Settings").maybe_date();
  if (!updated) return true;
  const bool new_year = years_between(*updated, session.today()) > 0;
  return new_year || session.today() > updated->add_months(1);
}

}  // namespace tallymere
