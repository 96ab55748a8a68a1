#include "core/company/logo.h"

#include <sodium.h>

#include "core/company/preferences.h"

namespace tallymere {
namespace {

constexpr std::string_view LogoPicture = "LogoPicture";
constexpr int variant = sodium_base64_VARIANT_ORIGINAL;

}  // namespace

std::string Company_Logo(store::Database& company) {
  const std::string kept = Preference(company, LogoPicture);
  std::string picture(kept.size(), '\0');
  size_t size = 0;
  if (sodium_base642bin(reinterpret_cast<unsigned char*>(picture.data()), picture.size(), kept.data(), kept.size(),
                        nullptr, &size, nullptr, variant) != 0)
    return "";
  picture.resize(size);
  return picture;
}

void Set_Company_Logo(store::Database& company, const std::string& picture) {
  std::string text(sodium_base64_ENCODED_LEN(picture.size(), variant), '\0');
  sodium_bin2base64(text.data(), text.size(), reinterpret_cast<const unsigned char*>(picture.data()), picture.size(),
                    variant);
  text.pop_back();  // its closing zero
  Set_Preference(company, LogoPicture, text);
}

}  // namespace tallymere
