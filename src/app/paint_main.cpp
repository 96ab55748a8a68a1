#include <QGuiApplication>
#include <QLoggingCategory>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "printing/layout_paint.h"
#include "reports/frame/report_file.h"
#include "reports/frame/report_paint.h"

namespace {

using namespace tallymere;

void Paint_Layouts(std::istream& in, const std::filesystem::path& out) {
  LayoutFile file = Read_Layout_File(in);
  if (file.layouts.empty()) throw std::runtime_error("there is nothing to print");
  Layout_Shelf shelf(file.places, [](const std::string& fault) { std::cerr << fault << "\n"; });
  Write_Pdf(Layout_Pages(std::move(file.layouts), shelf), out, QString::fromStdString(file.title));
}

bool Holds_Layouts(std::istream& in) {
  std::string mark;
  std::getline(in, mark);
  in.clear();
  in.seekg(0);
  return mark == layout_file_mark;
}

}  // namespace

/// tallymere-paint FILE OUT.pdf: paints the pages of a report, or of filled layouts, that another program built.
int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: tallymere-paint FILE OUT.pdf\n";
    return 2;
  }
  try {
    std::ifstream file(argv[1], std::ios::binary);
    if (!file) throw std::runtime_error(std::string("'") + argv[1] + "' cannot be read");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false"));  // what failed is said below
    const QGuiApplication app(argc, argv);
    if (Holds_Layouts(file))
      Paint_Layouts(file, argv[2]);
    else
      Write_Report_Pdf(Read_Report_File(file), std::filesystem::path(argv[2]));
    return 0;
  } catch (const std::exception& fault) {
    std::cerr << "tallymere-paint: " << fault.what() << "\n";
    return 1;
  }
}
