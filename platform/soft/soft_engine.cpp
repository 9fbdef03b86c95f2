#include "platform/soft/soft_engine.h"

#include <cstring>
#include <map>
#include <mutex>
#include <span>
#include <thread>

#include "platform/soft/gdi/default_color_tables.h"
#include "platform/soft/text/text_system.h"
#include "platform/soft/user/user_system.h"

namespace glyphon::win::soft {

const SystemColors& ClassicSystemColors() {
  static const SystemColors colors = {
      RGB(212, 208, 200),  // COLOR_SCROLLBAR
      RGB(58, 110, 165),   // COLOR_BACKGROUND
      RGB(10, 36, 106),    // COLOR_ACTIVECAPTION
      RGB(128, 128, 128),  // COLOR_INACTIVECAPTION
      RGB(212, 208, 200),  // COLOR_MENU
      RGB(255, 255, 255),  // COLOR_WINDOW
      RGB(0, 0, 0),        // COLOR_WINDOWFRAME
      RGB(0, 0, 0),        // COLOR_MENUTEXT
      RGB(0, 0, 0),        // COLOR_WINDOWTEXT
      RGB(255, 255, 255),  // COLOR_CAPTIONTEXT
      RGB(212, 208, 200),  // COLOR_ACTIVEBORDER
      RGB(212, 208, 200),  // COLOR_INACTIVEBORDER
      RGB(128, 128, 128),  // COLOR_APPWORKSPACE
      RGB(10, 36, 106),    // COLOR_HIGHLIGHT
      RGB(255, 255, 255),  // COLOR_HIGHLIGHTTEXT
      RGB(212, 208, 200),  // COLOR_BTNFACE
      RGB(128, 128, 128),  // COLOR_BTNSHADOW
      RGB(128, 128, 128),  // COLOR_GRAYTEXT
      RGB(0, 0, 0),        // COLOR_BTNTEXT
      RGB(212, 208, 200),  // COLOR_INACTIVECAPTIONTEXT
      RGB(255, 255, 255),  // COLOR_BTNHIGHLIGHT
      RGB(64, 64, 64),     // COLOR_3DDKSHADOW
      RGB(212, 208, 200),  // COLOR_3DLIGHT
      RGB(0, 0, 0),        // COLOR_INFOTEXT
      RGB(255, 255, 225),  // COLOR_INFOBK
      RGB(181, 181, 181),  // unnamed slot 25
      RGB(0, 0, 128),      // COLOR_HOTLIGHT
      RGB(166, 202, 240),  // COLOR_GRADIENTACTIVECAPTION
      RGB(192, 192, 192),  // COLOR_GRADIENTINACTIVECAPTION
      RGB(10, 36, 106),    // COLOR_MENUHILIGHT
      RGB(212, 208, 200),  // COLOR_MENUBAR
  };
  return colors;
}

SoftEngine::SoftEngine()
    : systemColors_(ClassicSystemColors()),
      text_(NewTextSystem(*this)),
      user_(std::make_unique<UserSystem>(*this)) {
  CreateStockObjects();
  SetScreenSize(1024, 768);
}

SoftEngine::~SoftEngine() = default;

namespace {

// The engines of the running threads. A thread's engine is deleted at its exit by a hook that
// finds it by thread id and reads no thread-local storage: MinGW's emulated thread-local storage
// can be released before thread-local destructors run, so the engine must not live in it.
struct ThreadEngines {
  std::mutex mutex;
  std::map<std::thread::id, std::unique_ptr<SoftEngine>> engines;
};

ThreadEngines& Engines() {
  static ThreadEngines* const engines = new ThreadEngines;  // never destroyed: threads may outlive
  return *engines;                                          // the static destructors
}

struct ThreadExit {
  ~ThreadExit() {
    std::unique_ptr<SoftEngine> engine;
    {
      std::lock_guard lock(Engines().mutex);
      auto it = Engines().engines.find(std::this_thread::get_id());
      if (it == Engines().engines.end()) return;
      engine = std::move(it->second);
      Engines().engines.erase(it);
    }
  }
};

}  // namespace

SoftEngine& ThreadSoftEngine() {
  thread_local SoftEngine* engine = nullptr;
  thread_local ThreadExit exitHook;  // constructed here, so its destructor runs at thread exit
  if (engine == nullptr) {
    auto created = std::make_unique<SoftEngine>();
    engine = created.get();
    std::lock_guard lock(Engines().mutex);
    Engines().engines[std::this_thread::get_id()] = std::move(created);
  }
  return *engine;
}

namespace {

template <class T>
std::unique_ptr<T> Stock() {
  auto object = std::make_unique<T>();
  object->stock = true;
  return object;
}

std::unique_ptr<Object> StockBrush(UINT style, COLORREF color) {
  auto brush = Stock<BrushObject>();
  brush->style = style;
  brush->color = color;
  return brush;
}

std::unique_ptr<Object> StockPen(int style, COLORREF color) {
  auto pen = Stock<PenObject>();
  pen->style = style;
  pen->color = color;
  return pen;
}

std::unique_ptr<Object> StockFont(LONG height, LONG weight, BYTE pitchAndFamily, const char* face) {
  auto font = Stock<FontObject>();
  font->logFont.lfHeight = height;
  font->logFont.lfWeight = weight;
  font->logFont.lfPitchAndFamily = pitchAndFamily;
  std::strncpy(font->logFont.lfFaceName, face, LF_FACESIZE - 1);
  return font;
}

// The default palette holds the twenty static colours: the ends of the halftone table.
std::unique_ptr<Object> StockPalette() {
  const std::span<const RGBQUAD> halftone = DefaultColorTable(8);
  auto entries = std::make_shared<std::vector<PALETTEENTRY>>();
  auto append = [&entries](std::span<const RGBQUAD> colors) {
    for (const RGBQUAD& c : colors) entries->push_back({c.rgbRed, c.rgbGreen, c.rgbBlue, 0});
  };
  append(halftone.first(10));
  append(halftone.last(10));
  auto palette = Stock<PaletteObject>();
  palette->entries = std::move(entries);
  return palette;
}

}  // namespace

void SoftEngine::CreateStockObjects() {
  auto add = [this](int index, std::unique_ptr<Object> object) {
    stockObjects_[index] = reinterpret_cast<HGDIOBJ>(objects_.Add(std::move(object)));
  };
  add(WHITE_BRUSH, StockBrush(BS_SOLID, RGB(255, 255, 255)));
  add(LTGRAY_BRUSH, StockBrush(BS_SOLID, RGB(192, 192, 192)));
  add(GRAY_BRUSH, StockBrush(BS_SOLID, RGB(128, 128, 128)));
  add(DKGRAY_BRUSH, StockBrush(BS_SOLID, RGB(64, 64, 64)));
  add(BLACK_BRUSH, StockBrush(BS_SOLID, RGB(0, 0, 0)));
  add(NULL_BRUSH, StockBrush(BS_NULL, 0));
  add(WHITE_PEN, StockPen(PS_SOLID, RGB(255, 255, 255)));
  add(BLACK_PEN, StockPen(PS_SOLID, RGB(0, 0, 0)));
  add(NULL_PEN, StockPen(PS_NULL, 0));
  add(OEM_FIXED_FONT, StockFont(12, FW_NORMAL, FIXED_PITCH | FF_MODERN, "Terminal"));
  add(ANSI_FIXED_FONT, StockFont(12, FW_NORMAL, FIXED_PITCH | FF_MODERN, "Courier"));
  add(ANSI_VAR_FONT, StockFont(12, FW_NORMAL, VARIABLE_PITCH | FF_SWISS, "MS Sans Serif"));
  add(SYSTEM_FONT, StockFont(16, FW_BOLD, VARIABLE_PITCH | FF_SWISS, "System"));
  add(DEVICE_DEFAULT_FONT, StockFont(16, FW_BOLD, VARIABLE_PITCH | FF_SWISS, "System"));
  add(DEFAULT_PALETTE, StockPalette());
  add(SYSTEM_FIXED_FONT, StockFont(16, FW_NORMAL, FIXED_PITCH | FF_MODERN, "Fixedsys"));
  add(DEFAULT_GUI_FONT, StockFont(-11, FW_NORMAL, VARIABLE_PITCH | FF_SWISS, "MS Shell Dlg"));
  add(DC_BRUSH, StockBrush(BS_SOLID, RGB(255, 255, 255)));
  add(DC_PEN, StockPen(PS_SOLID, RGB(0, 0, 0)));

  for (int i = 0; i < SYSTEM_COLOR_COUNT; ++i) {
    systemColorBrushes_[i] =
        reinterpret_cast<HBRUSH>(objects_.Add(StockBrush(BS_SOLID, systemColors_[i])));
  }

  auto bitmap = Stock<BitmapObject>();
  bitmap->pixmap = Pixmap::Create(1, 1, 1, false, Pixmap::RowAlignment::Word);
  defaultBitmap_ = reinterpret_cast<HBITMAP>(objects_.Add(std::move(bitmap)));
}

void SoftEngine::SetSystemColors(const SystemColors& colors) {
  systemColors_ = colors;
  for (int i = 0; i < SYSTEM_COLOR_COUNT; ++i) Brush(systemColorBrushes_[i])->color = colors[i];
  user_->BroadcastSystemColorChange();
}

void SoftEngine::SetScreenSize(int width, int height) {
  auto screen = Pixmap::Create(width, height, 32, true, Pixmap::RowAlignment::DoubleWord);
  if (screen) screen_ = std::move(screen);
}

}  // namespace glyphon::win::soft
