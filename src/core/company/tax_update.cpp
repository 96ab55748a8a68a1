#include "core/company/tax_update.h"

namespace tallymere {

void Check_Updates(Session& session) {
  auto settings = session.dbAccounts->OpenTable("Settings");
  if (!settings->has_row()) return;
  auto updated = (*settings)["Updated"].maybe_date();
  bool new_year = updated && years_between(*updated, session.today()) > 0;
  bool due = !updated || new_year || session.today() > updated->add_months(1);
  if (!due) return;
  if (new_year) session.RecalcAll = true;
  if ((*settings)["UpdateHost"].blank()) return;
}

}  // namespace tallymere
