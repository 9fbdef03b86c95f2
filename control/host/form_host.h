// A form that hosts controls as a container does: it owns the form window, places each control in
// a window of its own (a FormSite), supplies the ambient properties (run or design mode, the form's
// font and back colour, which button shows as the default) and each control's extender (name, tab
// stop, default, tooltip text, the form's colour), moves the focus with Tab and Shift+Tab between
// the controls whose tab stop is on, and hands Alt+key to the control that has that access key.
//
// Add the sites, create each control on its site and Attach it; end the controls before the form.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "control/host/form_window.h"
#include "control/host/window_site.h"

namespace glyphon {

class FormHost;

struct FormOptions {
  std::string caption = "Form1";
  int width = 400;
  int height = 300;
  bool userMode = true;
  win::OLE_COLOR backColor = 0x8000000F;
  StdFont font;
  // Headless users that only render switch the sites' logs off.
  bool record = true;
};

class FormSite final : public WindowSite {
 public:
  FormSite(FormHost& form, std::string name, const SiteRect& rect, bool record);

  // Attaches the control and tells it whether it shows as the default button.
  void Attach(HostedControl* control);

  const std::string& Name() const { return name_; }
  bool TabStop() const { return tabStop_; }
  // The tooltip text the form keeps for the control (its extender's ToolTipText).
  const std::string& ToolTipText() const { return toolTipText_; }
  void SetToolTipText(std::string text) { toolTipText_ = std::move(text); }

  // ---- ControlSite ----
  const AmbientProperties& Ambient() const override { return ambient_; }
  Extender* GetExtender() override { return &extender_; }

 private:
  friend class FormHost;

  class SiteAmbient final : public AmbientProperties {
   public:
    explicit SiteAmbient(const FormSite& site) : site_(site) {}
    bool UserMode() const override;
    bool DisplayAsDefault() const override;
    StdFont Font() const override;
    win::OLE_COLOR BackColor() const override;

   private:
    const FormSite& site_;
  };

  class SiteExtender final : public Extender {
   public:
    explicit SiteExtender(FormSite& site) : site_(site) {}
    std::optional<std::string> Name() const override { return site_.name_; }
    bool SetTabStop(bool tabStop) override;
    bool SetDefault(bool isDefault) override;
    std::optional<std::string> ToolTipText() const override { return site_.toolTipText_; }
    std::optional<win::OLE_COLOR> ContainerBackColor() const override;

   private:
    FormSite& site_;
  };

  bool OnAccessKey(char key) override;
  bool OnNavigationKey(win::UINT message, win::WPARAM key) override;
  void OnFocusChanged() override;

  FormHost& form_;
  std::string name_;
  bool tabStop_ = true;
  std::string toolTipText_;
  // The DisplayAsDefault value the control was last told.
  bool toldDisplayAsDefault_ = false;
  SiteAmbient ambient_{*this};
  SiteExtender extender_{*this};
};

class FormHost {
 public:
  explicit FormHost(const FormOptions& options = {});
  ~FormHost();
  FormHost(const FormHost&) = delete;
  FormHost& operator=(const FormHost&) = delete;

  win::HWND hWnd() const { return form_.hWnd(); }

  // A new control window on the form; the tab order is the order of adding.
  FormSite& AddSite(std::string name, const SiteRect& rect);
  const std::vector<std::unique_ptr<FormSite>>& Sites() const { return sites_; }
  FormSite* FindSite(std::string_view name) const;
  // The site whose window has the focus, if any.
  FormSite* FocusedSite() const;

  // Ambient properties; changing one tells every attached control.
  bool UserMode() const { return userMode_; }
  void SetUserMode(bool userMode);
  win::OLE_COLOR BackColor() const { return form_.BackColor(); }
  void SetBackColor(win::OLE_COLOR backColor);
  const StdFont& Font() const { return font_; }
  void SetFont(const StdFont& font);

  // The default button: Enter on the form clicks it. A focused button shows as the default
  // instead while it has the focus; without one the default button does.
  FormSite* DefaultSite() const { return defaultSite_; }
  void SetDefaultSite(FormSite* site);
  bool DisplaysAsDefault(const FormSite& site) const;

  // Gives the focus to the next (or previous) enabled control whose tab stop is on, wrapping.
  void MoveFocus(bool forward);
  // Alt+key: the first enabled control with that access key takes it. False if none does.
  bool PressAccessKey(char key);

 private:
  friend class FormSite;

  void TellAmbientChanged(std::string_view name);
  // Tells each control whose DisplayAsDefault value changed.
  void UpdateDisplayAsDefault();

  FormWindow form_;
  bool record_;
  bool userMode_;
  StdFont font_;
  FormSite* defaultSite_ = nullptr;
  std::vector<std::unique_ptr<FormSite>> sites_;
};

}  // namespace glyphon
