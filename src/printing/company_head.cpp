#include "printing/company_head.h"

#include "core/company/logo.h"
#include "core/store/recordset.h"
#include "printing/paper_text.h"

namespace tallymere {

void Fill_Company_Head(Session& session, Layout& layout, const std::string& name, const std::string& address) {
  auto company = session.dbCompany->OpenRecordset("SELECT * FROM CompanyInfo");
  if (!company.has_row()) return;
  layout.SetText(name, company["Name"].text());
  layout.SetText(address, Below_Name(company["Address"].text(), company["Name"].text()));
  if (std::string logo = Company_Logo(*session.dbCompany); !logo.empty()) layout.SetPicture("Logo", std::move(logo));
}

}  // namespace tallymere
