#include "propertypage/enumeration_items.h"

#include "control/glyphon_metadata.h"

namespace glyphon {

std::vector<std::string> EnumerationItems(std::string_view enumeration,
                                          std::string_view lastConstant) {
  std::vector<std::string> items;
  const EnumInfo* info = FindEnumeration(enumeration);
  if (info == nullptr) return items;
  for (const EnumMemberInfo& constant : info->members) {
    items.push_back(std::to_string(constant.value) + " - " + std::string(constant.name));
    if (constant.name == lastConstant) break;
  }
  return items;
}

}  // namespace glyphon
