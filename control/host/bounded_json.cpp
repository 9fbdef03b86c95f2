#include "control/host/bounded_json.h"

#include <deque>
#include <vector>

namespace glyphon {

namespace {

using Json = nlohmann::ordered_json;

// Builds the document value by value. A container is placed in its parent when it opens and
// filled in place, with a stack of pointers to the open ones; a scalar is placed once read. So
// stopping anywhere leaves a well-formed tree of everything read so far. Only the innermost
// open container ever grows, so the pointers to the outer ones stay valid.
class BoundedBuilder {
 public:
  BoundedBuilder(BoundedJson& result, const JsonLimits& limits)
      : result_(result), limits_(limits) {}

  bool null() { return Add(Json(nullptr)); }
  bool boolean(bool value) { return Add(Json(value)); }
  bool number_integer(Json::number_integer_t value) { return Add(Json(value)); }
  bool number_unsigned(Json::number_unsigned_t value) { return Add(Json(value)); }
  bool number_float(Json::number_float_t value, const std::string& /*text*/) {
    return Add(Json(value));
  }
  bool string(std::string& value) { return Add(Json(std::move(value))); }
  bool binary(Json::binary_t& /*value*/) { return Fail("binary values are not JSON"); }

  bool start_object(std::size_t /*count*/) { return Open(Json::object()); }
  bool key(std::string& name) {
    key_ = std::move(name);
    return true;
  }
  bool end_object() { return Close(); }
  bool start_array(std::size_t /*count*/) { return Open(Json::array()); }
  bool end_array() { return Close(); }

  bool parse_error(std::size_t position, const std::string& /*lastToken*/,
                   const nlohmann::detail::exception& /*error*/) {
    return Fail("not valid JSON at byte " + std::to_string(position > 0 ? position - 1 : 0));
  }

 private:
  bool Fail(std::string message) {
    if (!result_.error) result_.error = std::move(message);
    return false;
  }

  bool Count() {
    if (++values_ > limits_.maxValues) {
      return Fail("more than " + std::to_string(limits_.maxValues) + " values");
    }
    return true;
  }

  // Puts a finished value into the innermost open container (or makes it the document) and
  // returns where it now lives.
  Json* Place(Json value) {
    if (open_.empty()) {
      result_.document = std::move(value);
      return &result_.document;
    }
    Json& parent = *open_.back();
    if (parent.size() >= limits_.maxMembers) {
      Fail("more than " + std::to_string(limits_.maxMembers) + " members in one object or array");
      return nullptr;
    }
    if (parent.is_array()) {
      parent.push_back(std::move(value));
      return &parent.back();
    }
    // A repeated key keeps its first value: one meaning per key.
    const auto [it, inserted] = parent.emplace(key_, std::move(value));
    if (!inserted) result_.notes.push_back("key \"" + key_ + "\" repeated; its first value is kept");
    return inserted ? &it.value() : nullptr;
  }

  bool Add(Json value) {
    if (!Count()) return false;
    Place(std::move(value));
    return !result_.error;
  }

  bool Open(Json container) {
    if (!Count()) return false;
    if (open_.size() >= limits_.maxDepth) {
      return Fail("nested deeper than " + std::to_string(limits_.maxDepth) + " levels");
    }
    // An empty container is placed at once and filled in place; a dropped duplicate is built in
    // a scratch slot so that its contents go nowhere.
    const bool isArray = container.is_array();
    Json* slot = Place(std::move(container));
    if (result_.error) return false;
    if (slot == nullptr) {
      scratch_.emplace_back(isArray ? Json::array() : Json::object());
      slot = &scratch_.back();
    }
    open_.push_back(slot);
    return true;
  }

  bool Close() {
    if (!open_.empty()) open_.pop_back();
    return true;
  }

  BoundedJson& result_;
  const JsonLimits& limits_;
  std::vector<Json*> open_;
  // Where repeated keys' containers are filled and forgotten; a deque keeps them in place.
  std::deque<Json> scratch_;
  std::string key_;
  std::size_t values_ = 0;
};

}  // namespace

BoundedJson ParseBoundedJson(std::string_view text, const JsonLimits& limits) {
  BoundedJson result;
  BoundedBuilder builder(result, limits);
  Json::sax_parse(text.begin(), text.end(), &builder);
  return result;
}

}  // namespace glyphon
