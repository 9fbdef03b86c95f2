#include "apps/demo/demo_script.h"

#include <cctype>
#include <sstream>
#include <string>

#include "control/property_access.h"

namespace glyphon::apps {

namespace {

using win::soft::MouseButton;

struct NamedKey {
  std::string_view name;
  int virtualKey;
};

constexpr NamedKey kNamedKeys[] = {
    {"TAB", win::VK_TAB},       {"RETURN", win::VK_RETURN},   {"SPACE", win::VK_SPACE},
    {"ESCAPE", win::VK_ESCAPE}, {"SHIFT", win::VK_SHIFT},     {"CONTROL", win::VK_CONTROL},
    {"ALT", win::VK_MENU},
};

MouseButton ButtonNamed(const std::string& name) {
  if (name.empty() || name == "left") return MouseButton::Left;
  if (name == "right") return MouseButton::Right;
  if (name == "middle") return MouseButton::Middle;
  throw std::invalid_argument("no mouse button '" + name + "'");
}

int KeyOf(std::istringstream& words) {
  std::string name;
  words >> name;
  const int key = VirtualKeyNamed(name);
  if (key == 0) throw std::invalid_argument("no key '" + name + "'");
  return key;
}

void Point(std::istringstream& words, int& x, int& y) {
  if (!(words >> x >> y)) throw std::invalid_argument("wants X Y");
}

std::string Rest(std::istringstream& words) {
  std::string rest;
  std::getline(words >> std::ws, rest);
  return rest;
}

void RunCommand(DemoSession& session, const std::string& command, std::istringstream& words) {
  int x = 0;
  int y = 0;
  if (command == "move") {
    Point(words, x, y);
    session.MoveTo(x, y);
  } else if (command == "press" || command == "release" || command == "click") {
    Point(words, x, y);
    std::string button;
    words >> button;
    const MouseButton which = ButtonNamed(button);
    if (command != "release") session.Press(which, x, y);
    if (command != "press") session.Release(which, x, y);
  } else if (command == "keydown") {
    session.KeyDown(KeyOf(words));
  } else if (command == "keyup") {
    session.KeyUp(KeyOf(words));
  } else if (command == "key") {
    const int key = KeyOf(words);
    session.KeyDown(key);
    session.KeyUp(key);
  } else if (command == "type") {
    for (const char character : Rest(words)) session.Char(character);
  } else if (command == "alt") {
    const std::string character = Rest(words);
    if (character.size() != 1) throw std::invalid_argument("wants one character");
    session.KeyDown(win::VK_MENU);
    session.Char(character[0]);
    session.KeyUp(win::VK_MENU);
  } else if (command == "wait") {
    unsigned milliseconds = 0;
    if (!(words >> milliseconds)) throw std::invalid_argument("wants MILLISECONDS");
    session.Advance(milliseconds);
  } else if (command == "select") {
    const std::string name = Rest(words);
    if (session.Form().Find(name) == nullptr) throw std::invalid_argument("no button " + name);
    session.Select(name);
  } else if (command == "set") {
    const std::string setting = Rest(words);
    const std::size_t equals = setting.find('=');
    if (equals == std::string::npos || equals == 0) throw std::invalid_argument("wants NAME=VALUE");
    SetPropertyFromText(*session.Selected()->button, setting.substr(0, equals),
                        setting.substr(equals + 1));
  } else if (command == "screenshot") {
    session.Screenshot(Rest(words));
  } else if (command == "save") {
    session.SaveForm(Rest(words));
  } else if (command == "load") {
    session.LoadForm(Rest(words));
  } else {
    throw std::invalid_argument("unknown command '" + command + "'");
  }
}

}  // namespace

int VirtualKeyNamed(std::string_view name) {
  if (name.size() == 1 && std::isalnum(static_cast<unsigned char>(name[0]))) {
    return std::toupper(static_cast<unsigned char>(name[0]));
  }
  for (const NamedKey& key : kNamedKeys) {
    if (key.name == name) return key.virtualKey;
  }
  return 0;
}

void RunDemoScript(DemoSession& session, std::istream& script, std::ostream& events) {
  std::string line;
  for (int number = 1; std::getline(script, line); ++number) {
    std::istringstream words(line);
    std::string command;
    if (!(words >> command) || command.starts_with("#")) continue;
    try {
      RunCommand(session, command, words);
    } catch (const std::invalid_argument& error) {
      throw ScriptError("line " + std::to_string(number) + ": " + command + ": " + error.what());
    } catch (const std::runtime_error& error) {
      throw ScriptError("line " + std::to_string(number) + ": " + error.what());
    }
    for (const LogLine& entry : session.Log()) events << entry.button << ": " << entry.line << "\n";
    session.ClearLog();
  }
}

}  // namespace glyphon::apps
