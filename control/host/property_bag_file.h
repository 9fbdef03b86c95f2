// Saved forms on disk: the form's own properties and, for each control by name, the properties
// its container keeps (place, size, tab order, ...) and the control's property bag, as JSON:
//
//   {
//     "format": "glyphon-form", "version": 1,
//     "form": {"BackColor": -2147483633, ...},
//     "controls": [
//       {"name": "Command1", "extender": {"Left": 8, ...}, "properties": {"Caption": "OK", ...}}
//     ]
//   }
//
// Keys keep their order; values are written as property_value_json.h describes, so every key
// and value comes back exactly (pictures as equal pixels, not as the same object).
//
// Reading never fails: a file that is damaged or hostile gives what could be read, and a note
// for everything skipped. The file, the nesting, the number of values, the text and the
// picture data are all bounded.
#pragma once

#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "control/host/property_bag.h"

namespace glyphon {

inline constexpr std::uintmax_t kMaxFormFileBytes = 64 * 1024 * 1024;
inline constexpr std::size_t kMaxSavedControls = 1024;
inline constexpr std::size_t kMaxBagEntries = 256;

struct SavedEntry {
  std::string key;
  PropertyValue value;
};
using SavedEntries = std::vector<SavedEntry>;

// The value of a key, or null.
const PropertyValue* FindSavedEntry(const SavedEntries& entries, std::string_view key);

struct SavedControl {
  std::string name;
  SavedEntries extender;
  SavedEntries properties;
};

struct SavedForm {
  SavedEntries form;
  std::vector<SavedControl> controls;
};

struct SavedFormRead {
  SavedForm form;
  // One line for each thing left out, saying where and why.
  std::vector<std::string> skipped;
};

class FormFileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

SavedFormRead ReadSavedForm(std::string_view text);
SavedFormRead ReadSavedFormFile(const std::filesystem::path& path);

// Values that cannot be written (a metafile picture, an oversized font) are left out, with a note
// in skipped when given.
std::string WriteSavedForm(const SavedForm& form, std::vector<std::string>* skipped = nullptr);
// Throws FormFileError when the file cannot be written.
void WriteSavedFormFile(const SavedForm& form, const std::filesystem::path& path,
                        std::vector<std::string>* skipped = nullptr);

}  // namespace glyphon
