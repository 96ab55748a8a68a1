#pragma once

#include "forms/tax_form.h"

/// The table of forms: what the command line needs to know of each.
namespace tallymere {

struct FormRequest {
  int year = 0;
  int quarter = 1;  ///< from 1 to 4; yearly forms do not ask
  std::map<std::string, std::string, std::less<>> options = {};
};

struct FormDef {
  std::string_view key;  ///< "941"
  std::string_view caption;
  std::string_view area;  ///< the command that must be granted to whoever asks for it
  bool quarterly;
  FormPaper (*build)(Session&, const FormRequest&);  ///< store::Error or std::runtime_error says why it cannot be
};

std::span<const FormDef> Forms();
const FormDef* Find_Form(std::string_view key);  ///< ignoring case; nullptr when there is none

}  // namespace tallymere
