#include <gtest/gtest.h>

#include <cstdint>

#include "bundles/properties_xlate.h"
#include "bundles/xlate_manager.h"
#include "lang/interned_strings.h"
#include "lang/real_kx_xlate.h"
#include "log/translation_log.h"
#include "platform/directories.h"
#include "support/failing_new.h"
#include "support/temp_tree.h"

namespace {

// No allocation succeeds while `work` runs, so it may not need any.
template <class Work>
void ExpectNoAllocation(Work work) {
  const FailingNew failing(0);
  EXPECT_NO_THROW(work());
}

void HitEveryWay(CKxXlate* texts) {
  char text[64];
  EXPECT_NE(nullptr, texts->GetText("A_KEY_OF_MORE_THAN_SIXTEEN_BYTES"));
  EXPECT_NE(nullptr, texts->GetText("a_key_of_more_than_sixteen_bytes"));
  EXPECT_TRUE(texts->GetText(text, sizeof text, "A_KEY_OF_MORE_THAN_SIXTEEN_BYTES", nullptr));
}

class PropertyLookup : public testing::Test {
 protected:
  PropertyLookup() : manager_(tree_.Path()) {
    tree_.Write("msg.properties", "A_KEY_OF_MORE_THAN_SIXTEEN_BYTES=a text of more than sixteen\n");
    tree_.Write("msg_zh_Hant_TW.properties", "A_KEY_OF_MORE_THAN_SIXTEEN_BYTES=another\n");
    KxTraverseDirectory(tree_.Path().c_str(), &manager_);
    manager_.CompleteDefaults();
  }

  void AcquireAndRelease(const char* locale) {
    kx::GetPropertiesBundle(&manager_, "msg", locale)->Release();
  }

  TempTree tree_;
  XlateManager manager_;
};

TEST_F(PropertyLookup, HitAllocatesNothing) {
  CKxXlate* texts = kx::GetPropertiesBundle(&manager_, "msg", "");
  ExpectNoAllocation([&] { HitEveryWay(texts); });
  texts->Release();
}

TEST_F(PropertyLookup, AcquiringALoadedTranslatorAllocatesNothing) {
  for (const char* locale :
       {"", "zh_Hant_TW", "zh-Hant-TW", "ZH-hant-tw", "zh-Hant-TW-x-long-one"}) {
    AcquireAndRelease(locale);  // reads the file, or remembers the fallback
    ExpectNoAllocation([&] { AcquireAndRelease(locale); });
  }
}

TEST_F(PropertyLookup, RequestIsRememberedWholeOrNotAtAllThoughMemoryFails) {
  auto* const texts = static_cast<PropertiesXlate*>(kx::GetPropertiesBundle(&manager_, "msg", ""));
  for (const char* locale : {"fr-CA", "fr-CA-of-more-than-sixteen-bytes"}) {
    kx::ResolvedTranslators resolved;
    const int failures =
        FailEachAllocation([&] { resolved.Remember("msg", locale, *texts); },
                           [&] { EXPECT_EQ(nullptr, resolved.Find("msg", locale)); });
    EXPECT_GT(failures, 0);
    EXPECT_EQ(texts, resolved.Find("msg", locale));
  }
  texts->Release();
}

TEST_F(PropertyLookup, AcquiringByALocaleTooLongToRememberAllocatesNothing) {
  AcquireAndRelease("zh-Hant-TW");
  const std::string locale = "zh-Hant-TW-" + std::string(200'000, 'x');
  ExpectNoAllocation([&] { AcquireAndRelease(locale.c_str()); });
}

class LanguageLookup : public testing::Test {
 protected:
  LanguageLookup() : paths_{true, tree_.Path(), tree_.Path() + '/'} {
    tree_.Write(
        "FR/msg.lang",
        "Name French\n\nKey A_KEY_OF_MORE_THAN_SIXTEEN_BYTES\nValue a text of more than 16\n");
    // Its stream is never freed; so the log is not either.
    static auto* const log = new kx::TranslationLog;
    texts_ = new CRealKxXlate({paths_, strings_, nextId_, *log}, "msg", "fr", nullptr);
  }
  ~LanguageLookup() override { texts_->Release(); }

  TempTree tree_;
  kx::LanguagePaths paths_;
  kx::InternTable strings_;
  std::uint32_t nextId_ = 1;
  CKxXlate* texts_;
};

TEST_F(LanguageLookup, HitAllocatesNothing) {
  ExpectNoAllocation([&] { HitEveryWay(texts_); });
}

TEST_F(LanguageLookup, MissIsLoggedOnceThoughMemoryFails) {
  const int failures = FailEachAllocation(
      [&] { EXPECT_EQ(nullptr, texts_->GetText("ABSENT_AND_OF_SOME_LENGTH")); }, [] {});
  EXPECT_GT(failures, 0);
  EXPECT_EQ(nullptr, texts_->GetText("ABSENT_AND_OF_SOME_LENGTH"));
  EXPECT_EQ("FR (msg) key not found: ABSENT_AND_OF_SOME_LENGTH\n", tree_.Read("log/translate.log"));
}

}  // namespace
