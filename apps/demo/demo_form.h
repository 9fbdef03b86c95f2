// The demo's form: a dozen Glyphon buttons on a form of the form host, showing every style, a
// default button, a disabled one, pictures with effects, access keys and a tooltip. It can be
// saved to and loaded from a saved-form file (each button's place and size, its property bag, and
// which button is the default).
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "control/glyphon.h"
#include "control/host/form_host.h"
#include "control/host/property_bag_file.h"

namespace glyphon::apps {

struct DemoButton {
  FormSite* site;
  std::unique_ptr<Glyphon> button;
};

class DemoForm {
 public:
  static constexpr int kWidth = 560;
  static constexpr int kHeight = 300;

  // The buttons of the saved form, or the demo's own dozen when there is none; either way they
  // are loaded from their property bags, as a form's controls are when it runs.
  explicit DemoForm(const SavedForm* saved = nullptr);
  ~DemoForm();
  DemoForm(const DemoForm&) = delete;
  DemoForm& operator=(const DemoForm&) = delete;

  FormHost& Host() { return form_; }
  const std::vector<DemoButton>& Buttons() const { return buttons_; }
  DemoButton* Find(std::string_view name);
  // The button whose window is at a point of the form's client area, if any.
  DemoButton* At(int x, int y);

  SavedForm Save() const;
  // Told of every event, notification and repaint: the button's name and the recorder's line.
  void SetListener(std::function<void(const std::string& name, const std::string& line)> listener);

 private:
  void AddButton(const std::string& name, const SiteRect& rect);
  void Load(const SavedForm& saved);

  FormHost form_;
  std::vector<DemoButton> buttons_;
};

}  // namespace glyphon::apps
