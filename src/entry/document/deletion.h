#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "entry/document/walk.h"

namespace tallymere {

/// What deleting a document asks, what forbids it, and what it does beside taking the rows out.
struct Deletion {
  std::string question;  ///< "Are you sure you want to delete this Check?"
  std::string spoken;    ///< "Check 1042 to Acme Supply for $145.50"
  std::string title = "Confirm Delete";
  bool cleared = false;        ///< what the bank has cleared is asked about again
  std::vector<Box> more = {};  ///< asked after that, one by one; any No keeps the document
  /// Why it cannot go; nothing when it can. Looked at before anything is asked, and again inside the save.
  std::function<std::optional<Box>()> refusal = {};
  /// What goes or comes free with it. Inside the save, while the rows are still there.
  std::function<void()> frees = {};
};

/// How a deletion ended.
template <typename Document>
struct Deleted {
  bool deleted = false;
  std::optional<Conflict> conflict = {};
  std::optional<Document> show = {};  ///< after deleting: the document before, or a blank one
};

/// Says why not, or asks all that is to be asked.
bool May_Delete(Prompts& prompts, const Deletion& deletion);
/// Takes the rows out in one store transaction, unless another user touched them since `probe` was taken. A document
/// that was never saved has none: its number may be another user's by now. false: refused, which was said.
bool Delete_Rows(Session& session, int64_t TransNum, const Probe& probe, const Deletion& deletion);

/// Asks, and deletes the document with all that belongs to it, in one step.
template <typename Document>
Deleted<Document> Delete_Document(Session& session, const DocumentKind<Document>& kind, const Document& document,
                                  const Deletion& deletion) {
  if (!May_Delete(session.prompts, deletion)) return {};
  auto before = Walk_On(session, kind, document.TransNum, false).document;
  Deleted<Document> result;
  result.conflict =
      Save_Or_Conflict([&] { result.deleted = Delete_Rows(session, document.TransNum, document.probe, deletion); });
  if (result.deleted) result.show = before ? std::move(before) : kind.blank(session);
  return result;
}

}  // namespace tallymere
