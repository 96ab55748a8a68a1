#pragma once

#include "reports/aging/open_documents.h"
#include "reports/frame/listing.h"
#include "reports/reports.h"

/// What the aging reports share.
namespace tallymere {

/// The open documents of a party in the order in which reports walk them: name by name.
class Names_With_Documents {
 public:
  Names_With_Documents(store::Database& db, Party party);

  const std::vector<OpenDocument>& documents() const { return documents_; }
  const std::vector<std::string>& names() const { return names_; }  ///< also those without documents
  const std::vector<const OpenDocument*>& of(size_t name) const { return by_name_[name]; }

 private:
  std::vector<OpenDocument> documents_;
  std::vector<std::string> names_;
  std::vector<std::vector<const OpenDocument*>> by_name_;
};

/// The heading of a report on what is unpaid now; a past day is told what it cannot show.
ReportHeading Aging_Heading(Session& session, const ReportRequest& request);

/// Below the total: what leads from there to the balance of the category.
void Add_Steps_To_Balance(store::Database& db, ReportTable& table, Party party,
                          const std::vector<OpenDocument>& documents, int amount_column);

}  // namespace tallymere
