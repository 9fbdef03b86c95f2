// What the container says through dispatch interfaces: the ambient properties of the client
// site, and the extender object of the control site. A container without one of them, or
// without a member, gives the usual defaults (run mode, not the default button, a new font, the
// button-face colour) and, for the extender, no value.
#pragma once

#include "activex/windows_api.h"

namespace glyphon::activex {

class AmbientDispatch final : public AmbientProperties {
 public:
  void Attach(IDispatch* ambient) { ambient_ = ambient; }

  bool UserMode() const override;
  bool DisplayAsDefault() const override;
  StdFont Font() const override;
  win::OLE_COLOR BackColor() const override;

 private:
  ComPtr<IDispatch> ambient_;
};

class ExtenderDispatch final : public Extender {
 public:
  void Attach(IDispatch* extender) { extender_ = extender; }
  bool Attached() const { return extender_ != nullptr; }

  std::optional<std::string> Name() const override;
  bool SetTabStop(bool tabStop) override;
  bool SetDefault(bool isDefault) override;
  std::optional<std::string> ToolTipText() const override;
  std::optional<win::OLE_COLOR> ContainerBackColor() const override;

 private:
  std::optional<std::string> Text(const wchar_t* name) const;
  bool PutBoolean(const wchar_t* name, bool value);

  ComPtr<IDispatch> extender_;
};

}  // namespace glyphon::activex
