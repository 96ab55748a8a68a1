#include "core/company/passwords.h"

#include <sodium.h>

#include <new>

namespace tallymere {

std::string Hash_Password(const std::string& password) {
  if (password.empty()) return {};
  char hash[crypto_pwhash_STRBYTES];
  if (crypto_pwhash_str(hash, password.data(), password.size(), crypto_pwhash_OPSLIMIT_INTERACTIVE,
                        crypto_pwhash_MEMLIMIT_INTERACTIVE) != 0)
    throw std::bad_alloc();  // the only way it fails
  return hash;
}

bool Password_Matches(const std::string& kept, const std::string& typed) {
  if (kept.empty() || typed.empty()) return kept == typed;
  return crypto_pwhash_str_verify(kept.c_str(), typed.data(), typed.size()) == 0;
}

}  // namespace tallymere
