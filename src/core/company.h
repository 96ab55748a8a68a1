#pragma once

#include <filesystem>
#include <string>

#include "core/session.h"

/// How a company becomes current, and how it goes.
namespace tallymere {

/// The first steps of the program: Accounts.mdb and the tax table check; the log is open since the session began.
void Main(Session& session);

/// Prepares the program's folder on first start: builds Model.mdb and Accounts.mdb from the rows in `data` where they
/// are missing, and upgrades older ones.
void Prepare_Folder(const std::filesystem::path& folder, const std::filesystem::path& data);

void Set_Recordsets(Session& session);
void Close_Sets(Session& session);

/// Builds a new company file from Model.mdb in the program's folder. An existing name gives the box
/// "Company name already exisits." and LastCompanyError 3204.
void New_Company(Session& session, const std::string& name);

/// Opens a company file as session.dbCompany with CompanyPath and CompanyFile, upgrading an older one.
/// store::Error when it cannot be opened; the session is then as it was.
void Open_Company_File(Session& session, const std::filesystem::path& path);
/// Lets go of the current company: sets, database; CompanyPath stays for the caller to decide.
void Close_Company_File(Session& session);

/// "Acme - Main Display": the file's name less its last four characters, or "Main Display" without a company.
std::string Main_Title(const Session& session);

/// The answer's hash or plain text as kept in Users.Password and CompanyInfo.Password; comparison is exact.
std::string Hash_Password(const std::string& password);  ///< "" stays ""
bool Password_Matches(const std::string& kept, const std::string& typed);

}  // namespace tallymere
