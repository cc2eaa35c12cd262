// Languages that are rolled out by switching a link.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "core/language_switch.h"

namespace {

class LinkedLanguage : public LanguageSwitch {
 protected:
  void Link(const std::string& target, const std::string& link) {
    std::filesystem::create_directory_symlink(PathFromUtf8(target), At(link));
  }
};

TEST_F(LinkedLanguage, IsNoticedWhenALinkAboveIsSwitched) {
  WriteVersion("1/lang", "first");
  WriteVersion("2/lang", "second");
  Link("1", "product");
  ExpectText("first");
  Link("2", "next");
  Rename("next", "product");
  ExpectText("second");
}

TEST_F(LinkedLanguage, IsNoticedWhenItsOwnLinkIsSwitched) {
  WriteVersion("1", "first");
  WriteVersion("2", "second");
  tree_.MakeDirectory("product/lang");
  Link("../../1/FR", "product/lang/FR");
  ExpectText("first");
  std::filesystem::remove(At("product/lang/FR"));
  Link("../../2/FR", "product/lang/FR");
  ExpectText("second");
}

}  // namespace
