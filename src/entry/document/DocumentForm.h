#pragma once

#include <string>
#include <utility>

#include "entry/document/WalkForm.h"
#include "entry/document/deletion.h"
#include "entry/document/walk.h"

namespace tallymere {

/// A window over one kind of document. It shows a document and reads it back; saving, walking, loading and what
/// deleting leaves are done here.
template <typename Document>
class DocumentForm : public WalkForm {
 public:
  /// `number`: the document to show.
  void take(const Request& request) override {
    if (request.number == 0 || !let_go()) return;
    const auto asked = kind_.load(session, request.number);
    if (!asked)
      return shell.say("There is no " + std::string(kind_.word) + " " + std::to_string(request.number) + " any more.");
    show(*asked);
  }

 protected:
  DocumentForm(Shell& shell_of_frame, const char* name, const DocumentKind<Document>& kind)
      : WalkForm(shell_of_frame, name), kind_(kind), document_{.Date = session.today()} {}

  virtual void show_document(const Document& document) = 0;  ///< fills the controls
  virtual void shown() {}                                    ///< afterwards: where the focus goes
  virtual Document read() const = 0;                         ///< `document_` with what stands in the controls
  /// What leaving the fields and lines sets off, before saving. false: something was refused.
  virtual bool settle() { return true; }
  virtual void entered(const SaveResult&) {}  ///< after the save routine, before its boxes

  void show(Document document) {
    document_ = std::move(document);
    show_document(document_);
    set_Valid(true);
    keep();
    shown();
  }

  bool enter() override {
    if (!settle()) return false;
    Document document = read();
    const SaveResult result = kind_.enter(session, document);
    if (result.written) document_ = std::move(document);
    entered(result);
    return conclude(result);
  }

  void step(bool forward) override {
    auto next = Walk_On(session, kind_, document_.TransNum, forward);
    if (next.bounce) bounce();
    if (next.document) show(std::move(*next.document));
  }

  void show_new() override { show(kind_.blank(session)); }

  void load_again() override { show(Open_Document(session, kind_, document_.TransNum)); }

  void show_deleted(const Deleted<Document>& result) {
    if (result.conflict) return show_conflict(*result.conflict);
    if (!result.deleted) return;
    if (result.show) show(*result.show);
    shell.changed("Transactions");
  }

  const DocumentKind<Document>& kind_;
  Document document_;  ///< as it was loaded or last saved
};

}  // namespace tallymere
