// Which requests a manager answers by its memory of earlier ones. Strangers send locales, so it
// must be bounded.

#include <gtest/gtest.h>

#include <string>

#include "bundles/properties_xlate.h"
#include "bundles/xlate_manager.h"
#include "support/held_file.h"
#include "support/temp_tree.h"

namespace {

class RememberedRequests : public testing::Test {
 protected:
  RememberedRequests() {
    tree_.Write("msg.properties", "K=text\n");
    tree_.Write("msg_fr.properties", "K=texte\n");
    tree_.Write("only_fr.properties", "K=texte\n");
    for (const char* file : {"msg.properties", "msg_fr.properties", "only_fr.properties"}) {
      manager_.OnEntry(file, false);
    }
  }

  /// Asks for a translator, and tells whether the request is remembered then.
  bool IsRememberedOnceAsked(const char* bundle, const std::string& locale) {
    CKxXlate* const translator = kx::GetPropertiesBundle(&manager_, bundle, locale.c_str());
    CKxXlate* const remembered = manager_.Resolved().Find(bundle, locale);
    EXPECT_TRUE(remembered == nullptr || remembered == translator);
    if (translator != nullptr) translator->Release();
    return remembered != nullptr;
  }

  const TempTree tree_;
  XlateManager manager_{tree_.Path()};
};

TEST_F(RememberedRequests, AreThoseThatAFileAnswered) {
  EXPECT_EQ(nullptr, manager_.Resolved().Find("msg", "fr"));
  for (const char* locale : {"", "fr", "FR", "fr-CA", "de_AT"}) {
    EXPECT_TRUE(IsRememberedOnceAsked("msg", locale)) << locale;
  }
  EXPECT_FALSE(IsRememberedOnceAsked("only", "de"));
  EXPECT_FALSE(IsRememberedOnceAsked("other", "fr"));
}

TEST_F(RememberedRequests, AreNotThoseForLongLocales) {
  EXPECT_TRUE(IsRememberedOnceAsked("msg", "fr-" + std::string(61, 'x')));
  EXPECT_FALSE(IsRememberedOnceAsked("msg", "fr-" + std::string(62, 'x')));
}

TEST_F(RememberedRequests, AreBoundedInNumber) {
  int remembered = 0;
  for (int number = 0; number < 4096 + 500; ++number) {
    if (IsRememberedOnceAsked("msg", "fr-x" + std::to_string(number))) ++remembered;
  }
  EXPECT_EQ(4096, remembered);
  EXPECT_TRUE(IsRememberedOnceAsked("only", "fr-BE")) << "each bundle has a bound of its own";
}

TEST_F(RememberedRequests, AreNotThoseForAFileThatIsHeld) {
  testing::internal::CaptureStderr();
  {
    const HeldFile held(tree_.Path("msg_fr.properties"));
    EXPECT_FALSE(IsRememberedOnceAsked("msg", "fr"));
  }
  testing::internal::GetCapturedStderr();
  EXPECT_TRUE(IsRememberedOnceAsked("msg", "fr"));
}

}  // namespace
