#include "apps/demo/demo_session.h"

#include <stdexcept>

#include "platform/codec/bitmap_png.h"
#include "platform/soft/soft_engine.h"

namespace glyphon::apps {

namespace {

win::soft::UserSystem& User() { return win::soft::ThreadSoftEngine().User(); }

}  // namespace

DemoSession::DemoSession() : form_(std::make_unique<DemoForm>()) {
  Listen();
  selected_ = form_->Buttons().front().site->Name();
}

DemoSession::~DemoSession() = default;

void DemoSession::Listen() {
  form_->SetListener([this](const std::string& name, const std::string& line) {
    // Repaints come with every look change; the pane shows what the host hears as events.
    if (line.starts_with("paint ")) return;
    log_.push_back({name, line});
    ++loggedCount_;
    if (log_.size() > kLogLimit) log_.pop_front();
  });
}

DemoButton* DemoSession::Selected() { return form_->Find(selected_); }

void DemoSession::Select(std::string_view name) {
  if (form_->Find(name) != nullptr) selected_ = std::string(name);
}

win::POINT DemoSession::Screen(int x, int y) const {
  win::POINT point{x, y};
  win::ClientToScreen(form_->Host().hWnd(), &point);
  return point;
}

void DemoSession::MoveTo(int x, int y) { User().MouseMove(Screen(x, y)); }

void DemoSession::Press(win::soft::MouseButton button, int x, int y) {
  if (const DemoButton* target = form_->At(x, y)) selected_ = target->site->Name();
  User().MouseDown(button, Screen(x, y));
}

void DemoSession::Release(win::soft::MouseButton button, int x, int y) {
  User().MouseUp(button, Screen(x, y));
}

void DemoSession::KeyDown(int virtualKey) { User().KeyDown(virtualKey); }
void DemoSession::KeyUp(int virtualKey) { User().KeyUp(virtualKey); }
void DemoSession::Char(char character) { User().Char(character); }
void DemoSession::Advance(unsigned milliseconds) { User().AdvanceClock(milliseconds); }

const std::vector<std::uint8_t>& DemoSession::Frame() {
  User().DispatchPendingMessages();
  User().ComposeScreen();
  const win::HDC screen = win::GetDC(nullptr);
  const win::RECT area{0, 0, DemoForm::kWidth, DemoForm::kHeight};
  const std::optional<Image> image = CaptureDc(screen, area);
  win::ReleaseDC(nullptr, screen);
  frame_ = image ? image->bgra : std::vector<std::uint8_t>();
  return frame_;
}

void DemoSession::Screenshot(const std::filesystem::path& path) {
  Image image;
  image.width = DemoForm::kWidth;
  image.height = DemoForm::kHeight;
  image.bgra = Frame();
  std::string error;
  if (image.bgra.empty() || !WritePngFile(image, path, &error)) {
    throw std::runtime_error("cannot write " + path.string() + ": " + error);
  }
}

void DemoSession::SaveForm(const std::filesystem::path& path) const {
  WriteSavedFormFile(form_->Save(), path);
}

void DemoSession::LoadForm(const std::filesystem::path& path) {
  const SavedFormRead read = ReadSavedFormFile(path);
  if (read.form.controls.empty()) throw FormFileError(path.string() + " holds no button");
  form_.reset();
  form_ = std::make_unique<DemoForm>(&read.form);
  Listen();
  for (const std::string& note : read.skipped) {
    log_.push_back({"form", "skipped " + note});
    ++loggedCount_;
  }
  selected_ = form_->Buttons().front().site->Name();
}

}  // namespace glyphon::apps
