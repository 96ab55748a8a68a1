#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

#include "core/company/session.h"
#include "entry/document/document.h"

/// The walk from one document to the next, and how a kind of document is loaded, made, saved and deleted.
namespace tallymere {

/// Which transactions a window walks through, in the order Date, TransNum.
struct Walk {
  std::span<const std::string_view> types;
  int64_t band = 0;               ///< only numbers nearer than this to the one on screen; 0: the whole ledger
  std::string_view account = {};  ///< where each of them has a row, as bills in "AP1": spares reading the ledger
};
enum class Arrival {
  Document,  ///< show `TransNum`
  New,       ///< past the last: show a blank document
  Stay       ///< nothing that way: the screen stays as it is
};
struct Step {
  Arrival arrival = Arrival::Stay;
  int64_t TransNum = 0;
  bool bounce = false;  ///< play ball_bounce.wav
};
/// From the transaction on screen to the next or previous one. From a new document, one that is not in the
/// ledger, back goes to the last and forward stays.
Step Walk_From(Session& session, const Walk& walk, int64_t TransNum, bool forward);

/// A kind of document, for what is done alike with all of them. A document has its TransNum and the probe of its rows.
template <typename Document>
struct DocumentKind {
  const char* word;  ///< "check", as one speaks of it
  Walk walk;
  Document (*blank)(Session& session);
  std::optional<Document> (*load)(Session& session, int64_t TransNum);  ///< nothing when it is none of this kind
  SaveResult (*enter)(Session& session, Document& document);            ///< the save routine
};

/// The document asked for; a blank one when none was, or when it is not there.
template <typename Document>
Document Open_Document(Session& session, const DocumentKind<Document>& kind, int64_t TransNum = 0) {
  auto asked = TransNum == 0 ? std::nullopt : kind.load(session, TransNum);
  return asked ? std::move(*asked) : kind.blank(session);
}

/// What Next and Previous bring. Without a document the screen stays as it is.
template <typename Document>
struct Walked {
  std::optional<Document> document = {};
  bool bounce = false;  ///< play ball_bounce.wav
};
template <typename Document>
Walked<Document> Walk_On(Session& session, const DocumentKind<Document>& kind, int64_t TransNum, bool forward) {
  const Step step = Walk_From(session, kind.walk, TransNum, forward);
  switch (step.arrival) {
    case Arrival::Document:
      return {kind.load(session, step.TransNum)};
    case Arrival::New:
      return {kind.blank(session)};
    case Arrival::Stay:
      break;
  }
  return {.bounce = step.bounce};
}

}  // namespace tallymere
