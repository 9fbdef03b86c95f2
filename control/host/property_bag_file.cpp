#include "control/host/property_bag_file.h"

#include <fstream>
#include <iterator>
#include <set>

#include "control/host/bounded_json.h"
#include "control/host/property_value_json.h"
#include "platform/codec/picture_error.h"

namespace glyphon {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view kFormat = "glyphon-form";
constexpr int kVersion = 1;
constexpr std::size_t kMaxNameBytes = 255;

// ---- Writing ----

bool WritableName(const std::string& name) {
  // Dumping checks the UTF-8; a name that fails is reported instead of thrown.
  try {
    (void)Json(name).dump();
    return true;
  } catch (const Json::exception&) {
    return false;
  }
}

Json EntriesToJson(const SavedEntries& entries, const std::string& where,
                   std::vector<std::string>& skipped) {
  Json object = Json::object();
  for (const SavedEntry& entry : entries) {
    const std::string place = where + ": " + entry.key;
    if (!WritableName(entry.key)) {
      skipped.push_back(where + ": a key that is not UTF-8; not saved");
      continue;
    }
    try {
      object[entry.key] = PropertyValueToJson(entry.value);
    } catch (const PictureError& error) {
      skipped.push_back(place + ": " + error.what() + "; not saved");
    } catch (const std::invalid_argument& error) {
      skipped.push_back(place + ": " + error.what() + "; not saved");
    }
  }
  return object;
}

// ---- Reading ----

class FormReader {
 public:
  explicit FormReader(std::vector<std::string>& skipped) : skipped_(skipped) {}

  SavedForm Read(const Json& root) {
    SavedForm form;
    if (!root.is_object()) {
      Skip("file: not a saved form (no JSON object at the top)");
      return form;
    }
    const auto format = root.find("format");
    if (format == root.end() || !format->is_string() ||
        format->get_ref<const std::string&>() != kFormat) {
      Skip("file: not a saved form (\"format\" is not \"glyphon-form\")");
      return form;
    }
    for (const auto& [member, value] : root.items()) {
      if (member == "format") continue;
      if (member == "version") {
        CheckVersion(value);
      } else if (member == "form") {
        form.form = ReadEntries(value, "form");
      } else if (member == "controls") {
        form.controls = ReadControls(value);
      } else {
        Skip("file: unknown member \"" + member + "\"; skipped");
      }
    }
    return form;
  }

 private:
  void Skip(std::string message) { skipped_.push_back(std::move(message)); }

  void CheckVersion(const Json& value) {
    if (!value.is_number_integer()) {
      Skip("file: \"version\" is not a whole number; read as version 1");
    } else if (value.get<std::int64_t>() > kVersion) {
      Skip("file: written by a newer version (" + value.dump() +
           "); only what this version knows is read");
    }
  }

  SavedEntries ReadEntries(const Json& object, const std::string& where) {
    SavedEntries entries;
    if (!object.is_object()) {
      Skip(where + ": not an object; skipped");
      return entries;
    }
    for (const auto& [key, value] : object.items()) {
      if (entries.size() == kMaxBagEntries) {
        Skip(where + ": more than " + std::to_string(kMaxBagEntries) +
             " entries; the rest skipped");
        break;
      }
      if (key.empty() || key.size() > kMaxNameBytes) {
        Skip(where + ": a key that is empty or longer than " + std::to_string(kMaxNameBytes) +
             " bytes; skipped");
        continue;
      }
      if (auto read = PropertyValueFromJson(value, ValueNotes{where + ": " + key, skipped_})) {
        entries.push_back(SavedEntry{key, std::move(*read)});
      }
    }
    return entries;
  }

  std::vector<SavedControl> ReadControls(const Json& list) {
    std::vector<SavedControl> controls;
    if (!list.is_array()) {
      Skip("controls: not a list; skipped");
      return controls;
    }
    std::set<std::string, std::less<>> names;
    std::size_t index = 0;
    for (const Json& entry : list) {
      const std::string where = "controls[" + std::to_string(index++) + "]";
      if (controls.size() == kMaxSavedControls) {
        Skip("controls: more than " + std::to_string(kMaxSavedControls) +
             " controls; the rest skipped");
        break;
      }
      if (!entry.is_object()) {
        Skip(where + ": not an object; skipped");
        continue;
      }
      const auto name = entry.find("name");
      if (name == entry.end() || !name->is_string() || name->get_ref<const std::string&>().empty() ||
          name->get_ref<const std::string&>().size() > kMaxNameBytes) {
        Skip(where + ": no name, or a name longer than " + std::to_string(kMaxNameBytes) +
             " bytes; the control is skipped");
        continue;
      }
      SavedControl control;
      control.name = name->get<std::string>();
      if (!names.insert(control.name).second) {
        Skip(control.name + ": a second control of that name; skipped");
        continue;
      }
      for (const auto& [member, value] : entry.items()) {
        if (member == "name") continue;
        if (member == "extender") {
          control.extender = ReadEntries(value, control.name + " (extender)");
        } else if (member == "properties") {
          control.properties = ReadEntries(value, control.name);
        } else {
          Skip(control.name + ": unknown member \"" + member + "\"; skipped");
        }
      }
      controls.push_back(std::move(control));
    }
    return controls;
  }

  std::vector<std::string>& skipped_;
};

}  // namespace

const PropertyValue* FindSavedEntry(const SavedEntries& entries, std::string_view key) {
  for (const SavedEntry& entry : entries) {
    if (entry.key == key) return &entry.value;
  }
  return nullptr;
}

SavedFormRead ReadSavedForm(std::string_view text) {
  SavedFormRead result;
  if (text.size() > kMaxFormFileBytes) {
    result.skipped.push_back("file: larger than " + std::to_string(kMaxFormFileBytes) +
                             " bytes; nothing read");
    return result;
  }
  BoundedJson json = ParseBoundedJson(text);
  for (std::string& note : json.notes) result.skipped.push_back("file: " + std::move(note));
  if (json.error) result.skipped.push_back("file: " + *json.error + "; the rest is skipped");
  FormReader reader(result.skipped);
  result.form = reader.Read(json.document);
  return result;
}

SavedFormRead ReadSavedFormFile(const std::filesystem::path& path) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error || size > kMaxFormFileBytes) {
    SavedFormRead result;
    result.skipped.push_back(path.string() + ": " +
                             (error ? "cannot be read (" + error.message() + ")"
                                    : "larger than " + std::to_string(kMaxFormFileBytes) +
                                          " bytes") +
                             "; nothing read");
    return result;
  }
  std::ifstream file(path, std::ios::binary);
  std::string text;
  text.reserve(static_cast<std::size_t>(size));
  text.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  // The file may have grown since its size was taken.
  if (text.size() > kMaxFormFileBytes) text.resize(kMaxFormFileBytes + 1);
  return ReadSavedForm(text);
}

std::string WriteSavedForm(const SavedForm& form, std::vector<std::string>* skipped) {
  std::vector<std::string> notes;
  Json root{{"format", std::string(kFormat)}, {"version", kVersion}};
  root["form"] = EntriesToJson(form.form, "form", notes);
  Json controls = Json::array();
  for (const SavedControl& control : form.controls) {
    if (!WritableName(control.name)) {
      notes.push_back("a control whose name is not UTF-8; not saved");
      continue;
    }
    controls.push_back(Json{{"name", control.name},
                            {"extender", EntriesToJson(control.extender,
                                                       control.name + " (extender)", notes)},
                            {"properties", EntriesToJson(control.properties, control.name, notes)}});
  }
  root["controls"] = std::move(controls);
  if (skipped != nullptr) skipped->insert(skipped->end(), notes.begin(), notes.end());
  return root.dump(2) + "\n";
}

void WriteSavedFormFile(const SavedForm& form, const std::filesystem::path& path,
                        std::vector<std::string>* skipped) {
  const std::string text = WriteSavedForm(form, skipped);
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
  file.close();
  if (!file) throw FormFileError(path.string() + ": cannot be written");
}

}  // namespace glyphon
