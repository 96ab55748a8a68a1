#pragma once

#include <filesystem>
#include <string>

#include "core/company/session.h"

/// How a company becomes current, and how it goes.
namespace tallymere {

/// The first steps of the program: Accounts.mdb, then the tax table check. The log is open since the session began.
void Main(Session& session);

void Set_Recordsets(Session& session);  ///< opens every long-lived set, loads the number words
void Close_Sets(Session& session);      ///< all but CustomerMessages, which the next Set_Recordsets opens over

/// Builds a new company file from Model.mdb, in the program's folder; blanks around the name go. An existing name gives the box
/// "Company name already exisits." and LastCompanyError 3204; another fault goes on as store::Error and leaves no file.
void New_Company(Session& session, const std::string& name);

/// Makes a company file dbCompany, with CompanyPath and CompanyFile; an older file is brought up to date.
/// The company that was current is let go only when the new one has opened: on store::Error all is as it was.
/// Sets are not opened yet: that is Set_Recordsets, after the password steps.
void Open_Company_File(Session& session, const std::filesystem::path& path);

/// Lets go of dbCompany and its sets. CompanyPath stays; the caller decides.
void Close_Company_File(Session& session);

/// No company is open from here on, and nobody is logged in.
void Leave_Company(Session& session);

/// "Acme - Main Display": the file's name less its last four characters; without a company "Main Display".
std::string Main_Title(const Session& session);

/// Where a company of this name lives: the program's folder, name and ".cmf". Error 3044, with why, for a
/// name that no company can have (company_name.h).
std::filesystem::path Company_Path(const Session& session, const std::string& name);

}  // namespace tallymere
