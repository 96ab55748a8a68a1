#pragma once

#include <filesystem>

namespace tallymere {

/// Where this program's file lies.
std::filesystem::path Program_File();

/// "The program's folder", with databases, log and new companies: the folder the program lies in when that can be
/// written, else the user's data folder. It is made when missing.
std::filesystem::path Program_Folder();

/// What ships beside the program: rows of the databases, icons, sounds. Error 3044 when it is nowhere.
std::filesystem::path Shipped_Data();

}  // namespace tallymere
