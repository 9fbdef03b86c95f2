#include "apps/demo/demo_window.h"

#include <SDL.h>
#include <SDL_opengl.h>
#include <backends/imgui_impl_opengl2.h>
#include <backends/imgui_impl_sdl.h>
#include <imgui.h>

#include <fstream>
#include <iostream>

#include "apps/demo/page_panel.h"
#include "apps/demo/sdl_keys.h"
#include "apps/demo/sdl_message_box.h"
#include "platform/soft/soft_engine.h"

namespace glyphon::apps {

namespace {

constexpr float kPad = 8;
constexpr float kPanelLeft = DemoForm::kWidth + 2 * kPad;
constexpr int kWindowWidth = static_cast<int>(kPanelLeft + kPad) + GeneralPage::kWidth + 24;
constexpr int kWindowHeight = 660;

win::soft::MouseButton MouseButtonOf(Uint8 button) {
  switch (button) {
    case SDL_BUTTON_RIGHT: return win::soft::MouseButton::Right;
    case SDL_BUTTON_MIDDLE: return win::soft::MouseButton::Middle;
    default: return win::soft::MouseButton::Left;
  }
}

class DemoWindow {
 public:
  DemoWindow(DemoSession& session, const DemoWindowOptions& options)
      : session_(session), options_(options), page_(session) {
    if (options.eventLog) eventLog_.open(*options.eventLog, std::ios::app);
  }
  ~DemoWindow() { Close(); }
  DemoWindow(const DemoWindow&) = delete;
  DemoWindow& operator=(const DemoWindow&) = delete;

  bool Open();
  void Run();

 private:
  void Close();
  bool HandleEvent(const SDL_Event& event);
  void ForwardMouse(const SDL_Event& event);
  void ForwardKey(const SDL_Event& event);
  void WriteNewEvents();
  void Screenshot();
  void UploadForm();
  void DrawPanels();
  void DrawEventPane();

  int FormX(int windowX) const { return windowX - static_cast<int>(kPad); }
  int FormY(int windowY) const { return windowY - static_cast<int>(kPad); }
  bool OverForm(int windowX, int windowY) const {
    return FormX(windowX) >= 0 && FormY(windowY) >= 0 && FormX(windowX) < DemoForm::kWidth &&
           FormY(windowY) < DemoForm::kHeight;
  }

  DemoSession& session_;
  const DemoWindowOptions& options_;
  std::ofstream eventLog_;
  std::size_t written_ = 0;
  int screenshots_ = 0;
  int buttonsHeld_ = 0;
  std::string status_;
  PagePanel page_;

  SDL_Window* window_ = nullptr;
  SDL_GLContext context_ = nullptr;
  GLuint formTexture_ = 0;
  bool imgui_ = false;
};

bool DemoWindow::Open() {
  if (SDL_Init(SDL_INIT_VIDEO | SDL_INIT_TIMER) != 0) return false;
  SDL_GL_SetAttribute(SDL_GL_DOUBLEBUFFER, 1);
  window_ = SDL_CreateWindow("Glyphon demo", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                             kWindowWidth, kWindowHeight, SDL_WINDOW_OPENGL);
  if (window_ == nullptr) return false;
  context_ = SDL_GL_CreateContext(window_);
  if (context_ == nullptr) return false;
  SDL_GL_SetSwapInterval(1);
  IMGUI_CHECKVERSION();
  ImGui::CreateContext();
  ImGui::GetIO().IniFilename = nullptr;
  ImGui::StyleColorsLight();
  ImGui_ImplSDL2_InitForOpenGL(window_, context_);
  ImGui_ImplOpenGL2_Init();
  imgui_ = true;
  win::soft::ThreadSoftEngine().User().Hooks().messageBox =
      [this](win::HWND, win::LPCSTR text, win::LPCSTR caption, win::UINT type) {
        return ShowSdlMessageBox(window_, text, caption, type);
      };
  glGenTextures(1, &formTexture_);
  glBindTexture(GL_TEXTURE_2D, formTexture_);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
  return true;
}

void DemoWindow::Close() {
  win::soft::ThreadSoftEngine().User().Hooks().messageBox = nullptr;
  if (formTexture_ != 0) glDeleteTextures(1, &formTexture_);
  if (imgui_) {
    ImGui_ImplOpenGL2_Shutdown();
    ImGui_ImplSDL2_Shutdown();
    ImGui::DestroyContext();
  }
  if (context_ != nullptr) SDL_GL_DeleteContext(context_);
  if (window_ != nullptr) SDL_DestroyWindow(window_);
  SDL_Quit();
  formTexture_ = 0;
  imgui_ = false;
  context_ = nullptr;
  window_ = nullptr;
}

void DemoWindow::Run() {
  Uint32 last = SDL_GetTicks();
  for (bool running = true; running;) {
    SDL_Event event;
    while (SDL_PollEvent(&event) != 0) running = HandleEvent(event) && running;
    const Uint32 now = SDL_GetTicks();
    session_.Advance(now - last);
    last = now;
    WriteNewEvents();
    UploadForm();

    ImGui_ImplOpenGL2_NewFrame();
    ImGui_ImplSDL2_NewFrame();
    ImGui::NewFrame();
    DrawPanels();
    ImGui::Render();
    glViewport(0, 0, kWindowWidth, kWindowHeight);
    glClearColor(0.5f, 0.5f, 0.5f, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    ImGui_ImplOpenGL2_RenderDrawData(ImGui::GetDrawData());
    SDL_GL_SwapWindow(window_);
  }
}

// False when the demo should end.
bool DemoWindow::HandleEvent(const SDL_Event& event) {
  ImGui_ImplSDL2_ProcessEvent(&event);
  switch (event.type) {
    case SDL_QUIT:
      return false;
    case SDL_MOUSEMOTION:
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
      ForwardMouse(event);
      return true;
    case SDL_KEYDOWN:
    case SDL_KEYUP:
    case SDL_TEXTINPUT:
      ForwardKey(event);
      return true;
    default:
      return true;
  }
}

// The form takes the mouse over its area, and keeps it while one of its buttons is held.
void DemoWindow::ForwardMouse(const SDL_Event& event) {
  if (event.type == SDL_MOUSEMOTION) {
    if (OverForm(event.motion.x, event.motion.y) || buttonsHeld_ > 0) {
      session_.MoveTo(FormX(event.motion.x), FormY(event.motion.y));
    }
    return;
  }
  const auto which = MouseButtonOf(event.button.button);
  if (event.type == SDL_MOUSEBUTTONDOWN && OverForm(event.button.x, event.button.y)) {
    ++buttonsHeld_;
    session_.Press(which, FormX(event.button.x), FormY(event.button.y));
  } else if (event.type == SDL_MOUSEBUTTONUP && buttonsHeld_ > 0) {
    --buttonsHeld_;
    session_.Release(which, FormX(event.button.x), FormY(event.button.y));
  }
}

void DemoWindow::ForwardKey(const SDL_Event& event) {
  if (event.type == SDL_KEYDOWN) {
    switch (event.key.keysym.sym) {
      case SDLK_F12: Screenshot(); return;
      case SDLK_F2:
        session_.SaveForm(options_.formFile);
        status_ = "saved " + options_.formFile.string();
        return;
      case SDLK_F3:
        try {
          session_.LoadForm(options_.formFile);
          status_ = "loaded " + options_.formFile.string();
        } catch (const std::exception& error) {
          status_ = error.what();
        }
        return;
      default: break;
    }
  }
  // Keys go to the form unless a text box of the panels is being typed in.
  if (ImGui::GetIO().WantTextInput) return;
  if (event.type == SDL_TEXTINPUT) {
    // Alt combinations arrive as key presses below.
    if ((SDL_GetModState() & KMOD_ALT) != 0) return;
    for (const char* c = event.text.text; *c != '\0'; ++c) {
      if (static_cast<unsigned char>(*c) < 0x80) session_.Char(*c);
    }
    return;
  }
  const int key = VirtualKeyOf(event.key.keysym.sym);
  if (key == 0) return;
  if (event.type == SDL_KEYUP) {
    session_.KeyUp(key);
    return;
  }
  if (event.key.repeat == 0) session_.KeyDown(key);
  // Characters SDL does not type: Enter, and letters with Alt (access keys).
  if (key == win::VK_RETURN) session_.Char('\r');
  if ((event.key.keysym.mod & KMOD_ALT) != 0 && key >= '0' && key <= 'Z') {
    session_.Char(static_cast<char>(SDL_tolower(key)));
  }
}

void DemoWindow::WriteNewEvents() {
  const std::size_t first = session_.LoggedCount() - session_.Log().size();
  for (std::size_t i = std::max(written_, first); i < session_.LoggedCount(); ++i) {
    const LogLine& entry = session_.Log()[i - first];
    if (eventLog_) eventLog_ << entry.button << ": " << entry.line << "\n" << std::flush;
  }
  written_ = session_.LoggedCount();
}

void DemoWindow::Screenshot() {
  const auto path =
      options_.screenshotFolder / ("glyphon-demo-" + std::to_string(++screenshots_) + ".png");
  try {
    session_.Screenshot(path);
    status_ = "wrote " + path.string();
    std::cout << path.string() << std::endl;
  } catch (const std::exception& error) {
    status_ = error.what();
  }
}

void DemoWindow::UploadForm() {
  const std::vector<std::uint8_t>& pixels = session_.Frame();
  if (pixels.empty()) return;
  glBindTexture(GL_TEXTURE_2D, formTexture_);
  glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
  glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, DemoForm::kWidth, DemoForm::kHeight, 0, GL_BGRA,
               GL_UNSIGNED_BYTE, pixels.data());
}

void DemoWindow::DrawPanels() {
  ImGui::GetBackgroundDrawList()->AddImage(
      reinterpret_cast<ImTextureID>(static_cast<std::intptr_t>(formTexture_)), ImVec2(kPad, kPad),
      ImVec2(kPad + DemoForm::kWidth, kPad + DemoForm::kHeight));
  DrawEventPane();
  page_.Draw(kPanelLeft, kPad);
}

void DemoWindow::DrawEventPane() {
  const float top = 2 * kPad + DemoForm::kHeight;
  ImGui::SetNextWindowPos(ImVec2(kPad, top));
  ImGui::SetNextWindowSize(ImVec2(DemoForm::kWidth, kWindowHeight - top - kPad));
  const DemoButton* selected = session_.Selected();
  const std::string name = selected != nullptr ? selected->site->Name() : std::string();
  ImGui::Begin("Events", nullptr,
               ImGuiWindowFlags_NoMove | ImGuiWindowFlags_NoResize | ImGuiWindowFlags_NoCollapse);
  ImGui::Text("Events of %s  (F12 screenshot, F2 save form, F3 load form)", name.c_str());
  if (!status_.empty()) ImGui::TextUnformatted(status_.c_str());
  ImGui::Separator();
  ImGui::BeginChild("log");
  for (const LogLine& entry : session_.Log()) {
    if (entry.button == name || entry.button == "form") ImGui::TextUnformatted(entry.line.c_str());
  }
  if (ImGui::GetScrollY() >= ImGui::GetScrollMaxY()) ImGui::SetScrollHereY(1.0f);
  ImGui::EndChild();
  ImGui::End();
}

}  // namespace

int RunDemoWindow(DemoSession& session, const DemoWindowOptions& options) {
  DemoWindow window(session, options);
  if (!window.Open()) {
    std::cerr << "glyphon demo: cannot open a window: " << SDL_GetError()
              << " (use --headless --script FILE where there is no display)\n";
    return 1;
  }
  window.Run();
  return 0;
}

}  // namespace glyphon::apps
