#include "activex/ole_objects.h"

#include "activex/com_error.h"
#include "activex/text.h"

namespace glyphon::activex {

namespace {

HGDIOBJ CopyHandle(const StdPicture& picture) {
  switch (picture.Type()) {
    case PICTYPE_BITMAP:
      return CopyImage(reinterpret_cast<HBITMAP>(picture.Bitmap()), IMAGE_BITMAP, 0, 0, 0);
    case PICTYPE_ICON:
      return CopyIcon(reinterpret_cast<HICON>(picture.Icon()));
    default:
      return nullptr;
  }
}

}  // namespace

ComPtr<IFontDisp> MakeFontObject(const StdFont& font) {
  std::wstring name = Widen(font.Name());
  FONTDESC description{};
  description.cbSizeofstruct = sizeof description;
  description.lpstrName = name.data();
  description.cySize.int64 = font.SizeTenThousandths();
  description.sWeight = static_cast<SHORT>(font.Weight());
  description.sCharset = static_cast<SHORT>(font.Charset());
  description.fItalic = font.Italic() ? TRUE : FALSE;
  description.fUnderline = font.Underline() ? TRUE : FALSE;
  description.fStrikethrough = font.Strikethrough() ? TRUE : FALSE;
  ComPtr<IFontDisp> object;
  ThrowIfFailed(OleCreateFontIndirect(&description, IID_IFontDisp,
                                      reinterpret_cast<void**>(object.GetAddressOf())));
  return object;
}

std::optional<StdFont> FontFromObject(IUnknown* object) {
  ComPtr<IFont> source;
  if (object == nullptr || FAILED(object->QueryInterface(IID_PPV_ARGS(source.GetAddressOf())))) {
    return std::nullopt;
  }
  StdFont font;
  BSTR name = nullptr;
  if (SUCCEEDED(source->get_Name(&name))) font.Name(FromBstr(name));
  SysFreeString(name);
  CY size{};
  if (SUCCEEDED(source->get_Size(&size))) font.Size(static_cast<double>(size.int64) / 10000.0);
  BOOL flag = FALSE;
  if (SUCCEEDED(source->get_Italic(&flag))) font.Italic(flag != FALSE);
  if (SUCCEEDED(source->get_Underline(&flag))) font.Underline(flag != FALSE);
  if (SUCCEEDED(source->get_Strikethrough(&flag))) font.Strikethrough(flag != FALSE);
  SHORT number = 0;
  if (SUCCEEDED(source->get_Weight(&number))) font.Weight(number);
  if (SUCCEEDED(source->get_Charset(&number))) font.Charset(number);
  return font;
}

ComPtr<IPictureDisp> MakePictureObject(const StdPicture& picture) {
  if (picture.IsNothing()) return nullptr;
  PICTDESC description{};
  description.cbSizeofstruct = sizeof description;
  description.picType = PICTYPE_NONE;
  if (HGDIOBJ copy = CopyHandle(picture)) {
    description.picType = picture.Type();
    if (picture.Type() == PICTYPE_BITMAP) {
      description.bmp.hbitmap = static_cast<HBITMAP>(copy);
    } else {
      description.icon.hicon = static_cast<HICON>(copy);
    }
  }
  ComPtr<IPictureDisp> object;
  ThrowIfFailed(OleCreatePictureIndirect(&description, IID_IPictureDisp, TRUE,
                                         reinterpret_cast<void**>(object.GetAddressOf())));
  return object;
}

std::optional<StdPicture> PictureFromObject(IUnknown* object) {
  if (object == nullptr) return StdPicture{};
  ComPtr<IPicture> source;
  if (FAILED(object->QueryInterface(IID_PPV_ARGS(source.GetAddressOf())))) return std::nullopt;
  SHORT type = PICTYPE_NONE;
  OLE_HANDLE handle = 0;
  OLE_XSIZE_HIMETRIC width = 0;
  OLE_YSIZE_HIMETRIC height = 0;
  source->get_Type(&type);
  source->get_Handle(&handle);
  source->get_Width(&width);
  source->get_Height(&height);
  const auto native = reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(handle));
  switch (type) {
    case PICTYPE_BITMAP:
      if (HANDLE copy = CopyImage(native, IMAGE_BITMAP, 0, 0, 0)) {
        return StdPicture::FromBitmap(reinterpret_cast<win::HBITMAP>(copy), true);
      }
      return std::nullopt;
    case PICTYPE_ICON:
      if (HICON copy = CopyIcon(static_cast<HICON>(native))) {
        return StdPicture::FromIcon(reinterpret_cast<win::HICON>(copy), true);
      }
      return std::nullopt;
    case PICTYPE_METAFILE:
    case PICTYPE_ENHMETAFILE:
      return StdPicture::Metafile(static_cast<UINT>(type), width, height);
    default:
      return StdPicture::Empty();
  }
}

}  // namespace glyphon::activex
