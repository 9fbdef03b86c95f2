// The button's automation interface as data: every property, method and event with its dispatch
// identifier, help string, type and access, and the six enumerations. The type library and the
// late binding of the property page are generated from this table, so identifiers never change.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace glyphon {

enum class MemberKind : std::uint8_t { Property, Method, Event };

enum class MemberType : std::uint8_t {
  None,         // methods and events
  Boolean,      // 16-bit, true = -1
  Integer,      // 16-bit
  Long,         // 32-bit
  Single,
  Color,        // OLE_COLOR
  String,
  Font,         // StdFont
  Picture,      // StdPicture
  Handle,       // OLE_HANDLE
  Enumeration,  // 32-bit, named by MemberInfo::enumeration
};

// Access flags of a property.
inline constexpr std::uint8_t kAccessGet = 1;
inline constexpr std::uint8_t kAccessLet = 2;       // by value
inline constexpr std::uint8_t kAccessLetByRef = 4;  // by reference
inline constexpr std::uint8_t kAccessSet = 8;       // object reference

struct ParameterInfo {
  std::string_view name;
  MemberType type;
  bool byRef;
};

struct MemberInfo {
  std::string_view name;
  MemberKind kind;
  std::int32_t dispId;
  std::string_view helpString;  // empty when the member has none
  MemberType type;
  std::string_view enumeration;  // the enumeration's name when type is Enumeration
  std::uint8_t access;           // properties only
  std::span<const ParameterInfo> parameters;  // methods and events
};

struct EnumMemberInfo {
  std::string_view name;
  std::int32_t value;
};

struct EnumInfo {
  std::string_view name;
  std::span<const EnumMemberInfo> members;
};

inline constexpr std::string_view kLibraryName = "zonGlyphon";
inline constexpr std::string_view kClassName = "Glyphon";
inline constexpr std::string_view kProgId = "zonGlyphon.Glyphon";

// Properties and methods (the default interface) followed by the events (the source interface),
// each group in alphabetical order.
std::span<const MemberInfo> GlyphonMembers();
std::span<const EnumInfo> GlyphonEnumerations();

// Case-insensitive lookup, as late binding resolves names; null when there is no such member.
const MemberInfo* FindMember(std::string_view name, MemberKind kind);
const EnumInfo* FindEnumeration(std::string_view name);

}  // namespace glyphon
