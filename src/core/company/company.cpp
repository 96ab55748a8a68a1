#include "core/company/company.h"

#include "core/backup/file_aside.h"
#include "core/company/company_name.h"
#include "core/company/folder.h"
#include "core/company/tax_update.h"
#include "core/ledger/gate.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;
using store::Database;
using store::FileKind;

/// The long-lived sets in the order of their opening: table, whether it is one of Accounts.mdb's, index selected.
struct LongLivedSet {
  RecordSets::Set RecordSets::*set;
  std::string_view table;
  bool shared;
  std::string_view index;
};
constexpr LongLivedSet long_lived_sets[] = {
    {&RecordSets::Colors, "Colors", false, "Items"},
    {&RecordSets::GeneralPrefs, "GeneralPrefs", false, "Preference"},
    {&RecordSets::Items, "Items", false, "Item"},
    {&RecordSets::Customers, "Customers", false, "Company"},
    {&RecordSets::Vendors, "Vendors", false, "Vendor"},
    {&RecordSets::Accounts, "Accounts", false, "CatID"},
    {&RecordSets::CompanyInfo, "CompanyInfo", false, ""},
    {&RecordSets::PaymentMethod, "PaymentMethod", false, "Method"},
    {&RecordSets::Terms, "Terms", false, "Term"},
    {&RecordSets::VIA, "VIA", false, "Method"},
    {&RecordSets::RepNames, "RepNames", false, "Name"},
    {&RecordSets::Class, "Class", false, "Class"},
    {&RecordSets::Employees, "Employees", false, "SSNum"},
    {&RecordSets::EmployeeEarnings, "EmployeeEarnings", false, "SSNum"},
    {&RecordSets::EmployeeAdjustments, "EmployeeAdjustments", false, "SSNum"},
    {&RecordSets::EmployeeTaxes, "EmployeeTaxes", false, "SSNum"},
    {&RecordSets::PayrollItems, "PayrollItems", false, "Name"},
    {&RecordSets::TaxTracking, "TaxTracking", true, "Type"},
    {&RecordSets::PreTaxTable, "PreTaxTable", false, "Name"},
    {&RecordSets::PreWageTable, "PreWageTable", false, "Name"},
    {&RecordSets::PreDeducTable, "PreDeducTable", false, "Name"},
    {&RecordSets::FedWithholdAllowance, "FedWithholdAllowance", true, "PayPeriod"},
    {&RecordSets::RepeatTrans, "RepeatTrans", false, "Name"},
    {&RecordSets::Threshold, "Threshold", true, "Box"},
    {&RecordSets::POs, "POs", false, "Index"},
    {&RecordSets::POItems, "POItems", false, "Index"},
    {&RecordSets::PSlips, "PSlips", false, "Index"},
    {&RecordSets::PSlipItems, "PSlipItems", false, "Index"},
    {&RecordSets::Estimates, "Estimates", false, "Index"},
    {&RecordSets::EstItems, "EstItems", false, "Index"},
    {&RecordSets::SavedReports, "SavedReports", false, "ReportName"},
    {&RecordSets::CustomerMessages, "CustomerMessages", false, "Message"},
};

/// Tables whose rows a new company takes over from the model, in this order.
constexpr std::string_view copied_tables[] = {"Colors",    "GeneralPrefs", "PayrollItems",
                                              "PreTaxSet", "Accounts",     "Users"};

void Copy_Structure(const Database& model, Database& company) {
  for (const store::TableDef& table : model.TableDefs())
    if (!table.fields.empty()) company.CreateTableDef(table);
  for (const store::QueryDef& query : model.QueryDefs()) company.CreateQueryDef(query);
}

void Copy_Rows(Database& model, Database& company, std::string_view table, Date today) {
  auto from = model.OpenTable(table);
  auto to = company.OpenTable(table);
  for (from->MoveFirst(); !from->Eof(); from->MoveNext()) {
    to->AddNew();
    for (const store::Field& field : from->Fields()) (*to)[field.name] = (*from)[field.name].value();
    if (table == "Accounts") (*to)["OpeningDate"] = today;
    to->Update();
  }
}

void Add_Company_Info(Database& company, const std::string& name) {
  auto info = company.OpenTable("CompanyInfo");
  info->AddNew();
  (*info)["Name"] = name;
  (*info)["UserMode"] = "Single";
  info->Update();
}

void Fill_New_Company(Session& session, Database& company, const std::string& name) {
  auto model = Open_Current(session.folder / "Model.mdb", FileKind::Model);
  store::Transaction fill(company, "New company", store::Transaction::History::Summary);
  Copy_Structure(*model, company);
  Create_Reading_Indexes(company);
  for (std::string_view table : copied_tables) {
    Copy_Rows(*model, company, table, session.today());
    if (table == "Colors") Add_Company_Info(company, name);
  }
  company.set_version(schema_version);
  fill.commit();
}

bool Is_Cache(const std::string& table, const std::string& field) {
  const TableDef* definition = find_table(table);
  const FieldDef* found = definition ? definition->find_field(field) : nullptr;
  return found && found->cache;
}

store::Author Author_Of(Session& session) {
  return {[&session] { return session.acting_user(); }, [&session] { return session.clock.stamp(); }};
}

/// Tells a company's file who works on it and which of its fields are only caches.
void Introduce(Session& session, Database& db) {
  db.set_caches(Is_Cache);
  db.set_author(Author_Of(session));
}

}  // namespace

void Main(Session& session) {
  Sweep_Asides(session.folder);
  session.dbAccounts = Open_Current(session.folder / "Accounts.mdb", FileKind::Shared);
  Is_Tax_Check_Due(session);
}

void Set_Recordsets(Session& session) {
  Hourglass hourglass(session.prompts);
  Load_Number_Words(session.words);
  for (const LongLivedSet& entry : long_lived_sets) {
    Database& db = entry.shared ? *session.dbAccounts : *session.dbCompany;
    auto& set = session.sets.*entry.set;
    set = db.OpenTable(entry.table);
    if (!entry.index.empty()) set->Index(entry.index);
  }
}

void Close_Sets(Session& session) {
  for (const LongLivedSet& entry : long_lived_sets)
    if (entry.table != "CustomerMessages") (session.sets.*entry.set).reset();
}

fs::path Company_Path(const Session& session, const std::string& name) {
  if (const auto fault = Company_Name_Fault(name))
    throw store::Error(store::errors::bad_path, fault->detail.empty() ? fault->text : fault->detail);
  return session.folder / (trim(name) + ".cmf");
}

namespace {

/// Nobody meets a company without its tables, and a name that somebody takes meanwhile stays theirs. false:
/// it is taken.
bool Build_Company(Session& session, const fs::path& path, const std::string& name) {
  if (fs::exists(path)) return false;
  FileAside aside(session.folder);
  {
    auto company = Database::CreateDatabase(aside.path(), FileKind::Company);
    company->NewPassword("", database_password);
    Introduce(session, *company);
    Fill_New_Company(session, *company, name);
  }
  return aside.take_free(path);
}

}  // namespace

void New_Company(Session& session, const std::string& name) {
  session.LastCompanyError = 0;
  if (Build_Company(session, Company_Path(session, name), trim(name))) {
    session.MultiUser = false;
    return;
  }
  session.LastCompanyError = store::errors::database_exists;
  session.prompts.box({"Company name already exisits.", "Error", Icon::Critical});
}

void Open_Company_File(Session& session, const fs::path& path) {
  auto opened = Open_Current(path, FileKind::Company, Author_Of(session));
  opened->set_caches(Is_Cache);
  Sweep_Asides(Folder_Of(path));
  Close_Company_File(session);
  session.dbCompany = std::move(opened);
  Guard_Commits(session);
  session.CompanyPath = path.string();
  session.CompanyFile = path.filename().string();
}

void Close_Company_File(Session& session) {
  Close_Sets(session);
  session.sets.CustomerMessages.reset();  // its database goes with the company
  session.dbCompany.reset();
}

void Leave_Company(Session& session) {
  Close_Company_File(session);
  session.CompanyPath.clear();
  session.CompanyFile.clear();
  session.CurrentUser.clear();
  session.MultiUser = false;
}

std::string Main_Title(const Session& session) {
  if (!session.company_open()) return "Main Display";
  const std::string& file = session.CompanyFile;
  return file.substr(0, file.size() - std::min<size_t>(4, file.size())) + " - Main Display";
}

}  // namespace tallymere
