#include "forms/forms.h"

#include <algorithm>

#include "core/company/company_settings.h"
#include "core/values/text.h"
#include "forms/form_941.h"

namespace tallymere {
namespace {

/// As the window comes up for that quarter, with what it asks for by hand filled from the books.
Entry941 Usual_941(Session& session, const FormRequest& request) {
  const Date end = Quarter_Of(request.year, request.quarter).end;
  return {.dteEnd = end,
          .txtEmpCount = std::to_string(Employees_On_The_12th(*session.dbCompany, end)),
          .cmbState = Read_Company_Info(session).LegalState};
}

FormPaper Build_941(Session& session, const FormRequest& request) {
  return Paper_941(session, Usual_941(session, request));
}

FormPaper Build_Schedule_B(Session& session, const FormRequest& request) {
  return Paper_Schedule_B(session, Usual_941(session, request));
}

constexpr FormDef forms[] = {
    {"941", "Employer's quarterly federal tax return", "mnuPayroll", true, Build_941},
    {"ScheduleB", "What a semiweekly depositor owed, day by day", "mnuPayroll", true, Build_Schedule_B},
};

}  // namespace

std::span<const FormDef> Forms() { return forms; }

const FormDef* Find_Form(std::string_view key) {
  const auto found = std::ranges::find_if(forms, [key](const FormDef& form) { return same_text(form.key, key); });
  return found == std::end(forms) ? nullptr : found;
}

}  // namespace tallymere
