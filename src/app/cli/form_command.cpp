#include <iostream>

#include "app/cli/commands.h"
#include "app/cli/painter.h"
#include "core/backup/whole_file.h"
#include "core/company/users.h"
#include "forms/forms.h"
#include "reports/frame/renderers.h"

namespace tallymere::cli {

namespace {

int List_Forms() {
  for (const FormDef& form : Forms()) {
    std::string line(form.key);
    line.resize(std::max<size_t>(line.size() + 2, 16), ' ');
    std::cout << line << form.caption << (form.quarterly ? "  --year Y --quarter 1..4" : "  --year Y") << "\n";
  }
  return 0;
}

FormRequest Request_Of(Arguments& arguments, const FormDef& form) {
  FormRequest request;
  const int64_t year = arguments.number("year").value_or(0);
  if (year < 1900 || year > 9998) throw Usage("--year takes a year such as 2026");
  request.year = static_cast<int>(year);
  if (!form.quarterly) return request;
  const int64_t quarter = arguments.number("quarter").value_or(0);
  if (quarter < 1 || quarter > 4) throw Usage("--quarter takes 1 to 4");
  request.quarter = static_cast<int>(quarter);
  return request;
}

std::string Suffix_Of(const std::string& out) { return std::filesystem::path(out).extension().string(); }

void Write_Form(Session& session, FormPaper paper, const std::string& out) {
  if (out.empty()) return Write_Text(paper.table, std::cout);
  if (Suffix_Of(out) == ".csv") return Write_Whole(out, [&](std::ostream& file) { Write_Csv(paper.table, file); });
  LayoutFile file{std::move(paper.title), Layout_Places(session.folder), std::move(paper.layouts)};
  Paint(session, out, [&](std::ostream& handed) { Write_Layout_File(file, handed); });
}

}  // namespace

int Form(Arguments& arguments) {
  const auto key = arguments.maybe_word();
  if (!key) {
    arguments.finish();
    return List_Forms();
  }
  const FormDef* form = Find_Form(*key);
  if (!form) throw Usage("no such form: " + *key + " (`form` alone lists them)");
  CliSession cli(arguments);
  const std::string out = arguments.option("out", "");
  if (!out.empty() && Suffix_Of(out) != ".pdf" && Suffix_Of(out) != ".csv")
    throw Usage("--out takes a name that ends with .pdf or .csv");
  const FormRequest request = Request_Of(arguments, *form);
  cli.open(arguments);
  if (!May_Use(cli.session, form->area))
    throw std::runtime_error("The form " + std::string(form->key) + " is not among the rights of " +
                             cli.session.CurrentUser + ".");
  if (!out.empty()) Refuse_Output(out);
  arguments.finish();
  Write_Form(cli.session, form->build(cli.session, request), out);
  return 0;
}

}  // namespace tallymere::cli
