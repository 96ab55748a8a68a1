#include "entry/document/deletion.h"

#include <algorithm>

namespace tallymere {

bool May_Delete(Prompts& prompts, const Deletion& deletion) {
  if (const auto refusal = deletion.refusal ? deletion.refusal() : std::nullopt) {
    prompts.box(*refusal);
    return false;
  }
  if (!Confirm_Delete(prompts, deletion.question, deletion.cleared, deletion.spoken, deletion.title)) return false;
  return std::ranges::all_of(deletion.more, [&](const Box& box) { return prompts.ask(box, Buttons::YesNoDefaultNo); });
}

bool Delete_Rows(Session& session, int64_t TransNum, const Probe& probe, const Deletion& deletion) {
  if (probe.is_new()) return true;
  store::Transaction tx(*session.dbCompany, "Deleted " + Title_Of_Rows(*session.dbCompany, TransNum));
  probe.check(*session.dbCompany);
  if (const auto refusal = deletion.refusal ? deletion.refusal() : std::nullopt) {
    session.prompts.box(*refusal);
    return false;
  }
  if (deletion.frees) deletion.frees();
  Delete_Transaction(session, TransNum);
  tx.commit();
  return true;
}

}  // namespace tallymere
