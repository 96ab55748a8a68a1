#include "app/drive/vocabulary.h"

#include <QApplication>
#include <QFile>
#include <QMdiSubWindow>
#include <QMenu>
#include <iostream>
#include <map>

#include "app/drive/books.h"
#include "app/drive/controls.h"
#include "app/drive/failed.h"
#include "app/drive/grids.h"
#include "app/drive/hands.h"
#include "app/drive/lookup.h"
#include "shell/widgets/Form.h"

namespace tallymere::drive {

namespace {

using Kind = Expectations::Kind;

// --- the program and its commands ----------------------------------------------------------------

QJSValue Start(Toolbox& tools, const Args&) {
  tools.stage.start();
  hands::Settle();
  return {};
}

QJSValue Run(QAction& command) {
  lookup::Require_Usable(command);
  hands::Reach(lookup::Frame(), command.objectName());
  command.trigger();
  hands::Settle();
  return {};
}

QJSValue Menu(Toolbox&, const Args& args) { return Run(lookup::Menu_Command(args.text(0))); }
QJSValue Tool(Toolbox&, const Args& args) { return Run(lookup::Tool_Command(args.text(0))); }

/// The first of a company's two doors: the option of frmStart while that window stands, later a command.
void Begin(int start_option, const char* command) {
  if (lookup::Windows(QStringLiteral("frmStart")).empty()) {
    Run(lookup::Menu_Command(QString::fromLatin1(command)));
    return;
  }
  QWidget& start = lookup::Window(QStringLiteral("frmStart"));
  controls::Option(lookup::Control(start, QStringLiteral("optStart")), start_option);
  controls::Click(lookup::Control(start, QStringLiteral("cmdOK")));
}

QJSValue New_Company(Toolbox& tools, const Args& args) {
  Begin(0, "mnuNewCompany");
  QWidget& create = lookup::Window(QStringLiteral("frmCreate"));
  controls::Type(lookup::Control(create, QStringLiteral("txtName")), args.text(0));
  controls::Click(lookup::Control(create, QStringLiteral("cmdOk")));
  tools.stage.wait_for_company();
  return {};
}

QJSValue Open_Company(Toolbox& tools, const Args& args) {
  std::string path = utf8(args.text(0));
  if (!path.ends_with(".cmf")) path += ".cmf";
  tools.expectations.add_first({Kind::File, "Company Files (*.cmf)|*.cmf", std::nullopt, path, {}});
  Begin(1, "mnuOpenCommpany");
  tools.stage.wait_for_company();
  return {};
}

QJSValue Popup(Toolbox&, const Args& args) {
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  if (!menu) throw Failed{"no context menu is open"};
  QAction& item = lookup::Item_Of(*menu, args.text(0));
  lookup::Require_Usable(item);
  menu->close();
  item.trigger();
  hands::Settle();
  return {};
}

// --- windows and controls ------------------------------------------------------------------------

QJSValue Win(Toolbox& tools, const Args& args) { return tools.handles.number_of(lookup::Window(args.text(0))); }
QJSValue Is_Open(Toolbox&, const Args& args) { return !lookup::Windows(args.text(0)).empty(); }

QJSValue Wins(Toolbox& tools, const Args& args) {
  QJSValue list = tools.engine.newArray();
  quint32 count = 0;
  for (QWidget* window : lookup::Windows(args.text(0))) {
    list.setProperty(count++, tools.handles.number_of(*window));
  }
  return list;
}

/// What a name of a window or control means: a word all have, a verb of a grid, or a control in it.
QJSValue Get(Toolbox& tools, const Args& args) {
  QObject& object = args.control(0);
  const QString word = args.text(1);
  QJSValue seen = tools.engine.newObject();
  QVariant value = controls::Property_Of(object, word);
  if (auto* grid = qobject_cast<SSDBGrid*>(&object)) {
    if (!value.isValid()) value = grids::Property_Of(*grid, word);
    if (grids::Find_Verb(word)) seen.setProperty(QStringLiteral("verb"), true);
  }
  if (seen.hasProperty(QStringLiteral("verb"))) return seen;
  if (value.isValid()) {
    seen.setProperty(QStringLiteral("value"), tools.engine.toScriptValue(value));
  } else if (auto* window = qobject_cast<QWidget*>(&object)) {
    seen.setProperty(QStringLiteral("id"), tools.handles.number_of(lookup::Control(*window, word)));
  }
  return seen;
}

QJSValue Name(Toolbox&, const Args& args) { return args.control(0).objectName(); }

QJSValue Grid(Toolbox& tools, const Args& args) {
  return grids::Find_Verb(args.text(1))(tools.engine, args.grid(0), args.value(2));
}

QJSValue Click(Toolbox&, const Args& args) { return controls::Click(args.control(0)), QJSValue(); }
QJSValue Type(Toolbox&, const Args& args) { return controls::Type(args.control(0), args.text(1)), QJSValue(); }
QJSValue Pick(Toolbox&, const Args& args) { return controls::Pick(args.control(0), args.text(1)), QJSValue(); }
QJSValue Check(Toolbox&, const Args& args) { return controls::Check(args.control(0), args.flag(1)), QJSValue(); }
QJSValue Option(Toolbox&, const Args& args) { return controls::Option(args.control(0), args.number(1)), QJSValue(); }
QJSValue Key(Toolbox&, const Args& args) { return controls::Key(args.control(0), args.text(1)), QJSValue(); }
QJSValue Right_Click(Toolbox&, const Args& args) {
  return grids::Right_Click(args.grid(0), args.number(1)), QJSValue();
}

QJSValue Close(Toolbox&, const Args& args) {
  QWidget& window = args.window(0);
  hands::Reach(window, window.objectName());
  auto* sub = qobject_cast<QMdiSubWindow*>(window.parentWidget());
  sub ? sub->close() : window.close();
  hands::Settle();
  return {};
}

// --- what is expected ----------------------------------------------------------------------------

QJSValue Expect_Box(Toolbox& tools, const Args& args) {
  tools.expectations.add(
      {Kind::Box, args.maybe_text(0), args.maybe_text(1), args.maybe_text(2), {}, args.maybe_text(3)});
  return {};
}

QJSValue Expect_Input(Toolbox& tools, const Args& args) {
  tools.expectations.add({Kind::Input, args.maybe_text(0), args.maybe_text(1), args.maybe_text(2), {}});
  return {};
}

QJSValue Expect_File(Toolbox& tools, const Args& args) {
  tools.expectations.add({Kind::File, args.maybe_text(0), std::nullopt, args.maybe_text(1), {}});
  return {};
}

QJSValue Expect_Modal(Toolbox& tools, const Args& args) {
  if (!args.value(1).isCallable()) throw Failed{"modal() without a function", "modal(name, function (w) { ... })"};
  tools.expectations.add({Kind::Modal, args.maybe_text(0), std::nullopt, std::nullopt, args.value(1)});
  return {};
}

// --- what there is to see ------------------------------------------------------------------------

QJSValue Rows(Toolbox& tools, const Args& args) {
  return books::Rows(tools.engine, tools.stage.company(), utf8(args.text(0)), args.from(1));
}

QJSValue Other(Toolbox& tools, const Args& args) {
  return books::Change(tools.stage.company(), utf8(args.text(0)), args.from(1));
}

QJSValue Ledger(Toolbox& tools, const Args& args) {
  return books::Ledger(tools.engine, tools.stage.company(), args.value(0));
}

QJSValue List(Toolbox& tools, const std::vector<std::string>& texts) {
  QStringList list;
  for (const std::string& text : texts) list << qt(text);
  return tools.engine.toScriptValue(list);
}

QJSValue Write(Toolbox& tools, const Args& args) {
  QFile file(qt((tools.stage.folder() / utf8(args.text(0))).string()));
  if (!file.open(QIODevice::WriteOnly)) throw std::runtime_error("cannot write " + utf8(args.text(0)));
  file.write(args.text(1).toUtf8());
  return {};
}

QJSValue Exists(Toolbox& tools, const Args& args) {
  return std::filesystem::exists(tools.stage.folder() / utf8(args.text(0)));
}

QJSValue Stop(Toolbox& tools, const Args&) {
  tools.stage.stop_next_work();
  return {};
}

QJSValue Sounds(Toolbox& tools, const Args&) { return List(tools, tools.stage.sounds()); }
QJSValue Log(Toolbox& tools, const Args&) { return List(tools, tools.stage.log_lines()); }

QJSValue Shot(Toolbox& tools, const Args& args) {
  const auto named = lookup::Windows(args.text(0));
  tools.stage.shot(named.empty() ? lookup::Frame() : *named.back(), utf8(args.text(0)));
  return {};
}

QJSValue Print(Toolbox& tools, const Args& args) {
  std::string line;
  for (const QJSValue& part : args.from(0)) {
    const QJSValue json = tools.engine.globalObject().property(QStringLiteral("JSON"));
    const bool plain = part.isObject() && part.property(QStringLiteral("$id")).isUndefined();
    const QJSValue shown = plain ? json.property(QStringLiteral("stringify")).call({part}) : part;
    line += (line.empty() ? "" : " ") + utf8(shown.toString());
  }
  std::cout << line << std::endl;
  return {};
}

const std::map<QString, Verb>& Verbs() {
  static const std::map<QString, Verb> verbs{{"start", Start},
                                             {"newCompany", New_Company},
                                             {"openCompany", Open_Company},
                                             {"menu", Menu},
                                             {"tool", Tool},
                                             {"click", Click},
                                             {"popup", Popup},
                                             {"rightclick", Right_Click},
                                             {"win", Win},
                                             {"isOpen", Is_Open},
                                             {"wins", Wins},
                                             {"type", Type},
                                             {"pick", Pick},
                                             {"date", Type},
                                             {"check", Check},
                                             {"option", Option},
                                             {"key", Key},
                                             {"close", Close},
                                             {"box", Expect_Box},
                                             {"input", Expect_Input},
                                             {"file", Expect_File},
                                             {"modal", Expect_Modal},
                                             {"rows", Rows},
                                             {"other", Other},
                                             {"ledger", Ledger},
                                             {"stop", Stop},
                                             {"exists", Exists},
                                             {"write", Write},
                                             {"sounds", Sounds},
                                             {"log", Log},
                                             {"shot", Shot},
                                             {"print", Print},
                                             {"$get", Get},
                                             {"$grid", Grid},
                                             {"$name", Name}};
  return verbs;
}

}  // namespace

Verb Find_Verb(const QString& name) {
  const auto found = Verbs().find(name);
  return found == Verbs().end() ? nullptr : found->second;
}

QStringList Verb_Names() {
  QStringList names;
  for (const auto& [name, verb] : Verbs()) names << name;
  return names;
}

}  // namespace tallymere::drive
