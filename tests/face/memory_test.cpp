#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <string>
#include <string_view>
#include <utility>

#include "KxXlate.hpp"
#include "core/counted_new.h"
#include "support/temp_tree.h"

namespace {

/// English texts of "tool", in a language file, whose translators are freed with their last
/// reference.
class FaceMemory : public testing::Test {
 protected:
  FaceMemory() {
    tree_.Write("EN/tool.lang", "Name English\n\nKey K\nValue Hello, %0\n");
    CKxXlate::SetResourceDirectory(tree_.Path().c_str());
  }

  /// How many blocks a second run of `work` leaves, once the cache is emptied.
  template <class Work>
  static long LeftBy(const Work& work) {
    work();
    CKxXlate::FreeCache();
    const long before = LiveBlocks();
    work();
    CKxXlate::FreeCache();
    return LiveBlocks() - before;
  }

  const TempTree tree_;
};

TEST_F(FaceMemory, MessagesGiveBackAllReferences) {
  EXPECT_EQ(0, LeftBy([] {
              kx::Message message("tool", "en");
              message.set_values("Ann");
              EXPECT_STREQ("Hello, Ann", message.format("K"));
              kx::Message copy = message;
              EXPECT_STREQ("Hello, Ann", copy.format("K"));
              kx::Message moved = std::move(copy);
              EXPECT_STREQ("Hello, Ann", moved.format("K"));
              moved.set_locale("en-GB");
              EXPECT_STREQ("Hello, Ann", moved.format("K"));
              moved = message;
              EXPECT_STREQ("Hello, Ann", moved.format("K"));
            }));
}

TEST_F(FaceMemory, TranslatorsGiveBackAllReferences) {
  EXPECT_EQ(0, LeftBy([] {
              const kx::Translator texts = kx::Translator::find("tool", "en");
              kx::Translator other = texts;
              other = kx::Translator::find_language("tool", "en", "GB");
              const auto chain = kx::fallback_chain("tool", "en-GB");
              EXPECT_EQ("Hello, %0", texts.text_or("K", ""));
            }));
}

TEST_F(FaceMemory, AValueWithoutMemoryLeavesNothingInAMessage) {
  for (const std::size_t size : {14U, 15U, 16U, 30U, 31U}) {
    kx::Message message("tool", "en");
    const std::string value(size, 'x');
    FailAllocation(1);
    bool isAdded = true;
    try {
      isAdded = message.add_value(value);
    } catch (const std::bad_alloc&) {
      isAdded = false;
    }
    FailAllocation(0);
    EXPECT_TRUE(message.add_value("last"));
    EXPECT_EQ(isAdded ? value + ", last" : "last", message.format(isAdded ? "%0, %1" : "%0"))
        << size;
  }
  CKxXlate::FreeCache();
}

TEST_F(FaceMemory, LookupsAndShortResultsInABufferAskForNone) {
  const kx::Translator texts = kx::Translator::find("tool", "en");
  const std::string name = "Ann";
  char line[600];
  FailAllocation(1);
  const std::string_view text = texts.text_or(std::string_view("K"), "");
  const bool isCut = kx::insert_into(line, text, name, 1.5).is_cut ||
                     kx::insert_typed_into(line, "%s has %d", name, 3).is_cut ||
                     kx::insert_variable_into(line, "%s:1 has %d:2", name, 3).is_cut;
  FailAllocation(0);
  EXPECT_FALSE(isCut);
  EXPECT_STREQ("Ann has 3", line);
  CKxXlate::FreeCache();
}

}  // namespace
