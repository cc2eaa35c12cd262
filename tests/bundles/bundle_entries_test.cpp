#include "bundles/bundle_entries.h"

#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

namespace {

/// Stands for a translator; counts what is given back.
struct FakeTranslator {
  void Release() { ++releases; }
  std::atomic<int> releases = 0;
};

using Base = bnd::BundleBase<FakeTranslator>;
using File = bnd::BundleFile<FakeTranslator>;
using Ref = bnd::BundleRef<FakeTranslator>;

static_assert(std::is_abstract_v<Base>);
static_assert(std::has_virtual_destructor_v<Base>);
static_assert(!std::is_copy_constructible_v<File> && !std::is_copy_assignable_v<File>);
static_assert(!std::is_copy_constructible_v<Ref> && !std::is_copy_assignable_v<Ref>);

constexpr int kThreads = 8;

TEST(BundleFile, KeepsWhatItWasMadeOf) {
  const File file("agent", "fr_CA", "root/agent_fr_CA.properties");

  EXPECT_EQ("agent", file.BundleName());
  EXPECT_EQ("fr_CA", file.Locale());
  EXPECT_EQ("root/agent_fr_CA.properties", file.Path());
}

TEST(BundleFile, IsItsOwnFile) {
  File file("agent", "fr", "agent_fr.properties");
  Base& entry = file;

  EXPECT_TRUE(entry.IsFile());
  EXPECT_EQ(&file, entry.GetFile());
}

TEST(BundleFile, IsTheDefaultWithoutALocaleOnly) {
  EXPECT_TRUE(File("agent", "", "agent.properties").IsDefault());
  EXPECT_FALSE(File("agent", "en", "agent_en.properties").IsDefault());
  EXPECT_FALSE(File("agent", " ", "agent_ .properties").IsDefault());
}

TEST(BundleFile, MayHaveNoName) {
  const File file("", "", "");

  EXPECT_EQ("", file.BundleName());
  EXPECT_EQ("", file.Locale());
  EXPECT_EQ("", file.Path());
}

TEST(BundleFile, MakesItsTranslatorOnFirstUse) {
  FakeTranslator translator;
  File file("agent", "fr", "agent_fr.properties");
  std::vector<const File*> madeFor;
  const auto make = [&](const File& owner) {
    madeFor.push_back(&owner);
    return &translator;
  };

  EXPECT_EQ(0u, madeFor.size());
  EXPECT_EQ(&translator, file.Translator(make));
  EXPECT_EQ(&translator, file.Translator(make));
  EXPECT_EQ(&translator, file.Translator(make));
  EXPECT_EQ(std::vector<const File*>{&file}, madeFor);
}

TEST(BundleFile, LaterMakersAreNotAsked) {
  FakeTranslator first;
  FakeTranslator second;
  File file("agent", "fr", "agent_fr.properties");

  EXPECT_EQ(&first, file.Translator([&](const File&) { return &first; }));
  EXPECT_EQ(&first, file.Translator([&](const File&) { return &second; }));
}

TEST(BundleFile, EachHasItsOwnTranslator) {
  FakeTranslator french;
  FakeTranslator german;
  File frenchFile("agent", "fr", "agent_fr.properties");
  File germanFile("agent", "de", "agent_de.properties");

  EXPECT_EQ(&french, frenchFile.Translator([&](const File&) { return &french; }));
  EXPECT_EQ(&german, germanFile.Translator([&](const File&) { return &german; }));
}

TEST(BundleFile, ThreadsShareTheOneTranslatorThatIsMade) {
  std::vector<std::unique_ptr<FakeTranslator>> made;
  File file("agent", "fr", "agent_fr.properties");
  std::vector<FakeTranslator*> got(kThreads);
  std::latch start(kThreads);
  {
    std::vector<std::jthread> threads;
    for (FakeTranslator*& slot : got) {
      threads.emplace_back([&file, &made, &start, &slot] {
        start.arrive_and_wait();
        slot = file.Translator([&made](const File&) {
          // Without a lock of its own: the file lets one thread at a time in here.
          made.push_back(std::make_unique<FakeTranslator>());
          std::this_thread::yield();
          return made.back().get();
        });
      });
    }
  }

  ASSERT_EQ(1u, made.size());
  EXPECT_EQ(std::vector<FakeTranslator*>(kThreads, made[0].get()), got);
}

TEST(BundleFile, IsMadeAgainAfterAMakerThatThrew) {
  FakeTranslator translator;
  File file("agent", "fr", "agent_fr.properties");
  int calls = 0;
  const auto make = [&](const File&) -> FakeTranslator* {
    if (++calls < 3) throw std::runtime_error("no memory");
    return &translator;
  };

  EXPECT_THROW(file.Translator(make), std::runtime_error);
  EXPECT_THROW(file.Translator(make), std::runtime_error);
  EXPECT_EQ(&translator, file.Translator(make));
  EXPECT_EQ(&translator, file.Translator(make));
  EXPECT_EQ(3, calls);
}

TEST(BundleFile, AMakerThatThrewInOneThreadKeepsNoOtherOut) {
  FakeTranslator translator;
  File file("agent", "fr", "agent_fr.properties");
  std::atomic<int> calls = 0;
  std::atomic<int> failures = 0;
  std::vector<FakeTranslator*> got(kThreads);
  std::latch start(kThreads);
  {
    std::vector<std::jthread> threads;
    for (FakeTranslator*& slot : got) {
      threads.emplace_back([&, result = &slot] {
        start.arrive_and_wait();
        while (*result == nullptr) {
          try {
            *result = file.Translator([&](const File&) -> FakeTranslator* {
              if (++calls <= 5) throw std::runtime_error("no memory");
              return &translator;
            });
          } catch (const std::runtime_error&) {
            ++failures;
          }
        }
      });
    }
  }

  EXPECT_EQ(6, calls);
  EXPECT_EQ(5, failures);
  EXPECT_EQ(std::vector<FakeTranslator*>(kThreads, &translator), got);
}

TEST(BundleFile, GivesItsOwnReferenceBackWhenDestroyed) {
  FakeTranslator translator;
  {
    File file("agent", "fr", "agent_fr.properties");
    file.Translator([&](const File&) { return &translator; });
    file.Translator([&](const File&) { return &translator; });
    EXPECT_EQ(0, translator.releases);
  }
  EXPECT_EQ(1, translator.releases);
}

TEST(BundleFile, GivesItsReferenceBackAlsoWhenDestroyedAsAnEntry) {
  FakeTranslator translator;
  std::unique_ptr<Base> entry = std::make_unique<File>("agent", "fr", "agent_fr.properties");
  entry->GetFile()->Translator([&](const File&) { return &translator; });

  entry.reset();

  EXPECT_EQ(1, translator.releases);
}

TEST(BundleFile, NeverAskedForGivesNothingBack) {
  FakeTranslator translator;
  bool made = false;
  {
    File file("agent", "fr", "agent_fr.properties");
    EXPECT_THROW(file.Translator([&](const File&) -> FakeTranslator* {
      made = true;
      throw std::runtime_error("no memory");
    }),
                 std::runtime_error);
  }
  EXPECT_TRUE(made);
  EXPECT_EQ(0, translator.releases);
}

TEST(BundleRef, StandsForAnotherLocalesFile) {
  File file("agent", "fr_CA", "agent_fr_CA.properties");
  Ref ref("agent", "fr-CA", file, false);
  Base& entry = ref;

  EXPECT_EQ("agent", entry.BundleName());
  EXPECT_EQ("fr-CA", entry.Locale());
  EXPECT_FALSE(entry.IsFile());
  EXPECT_EQ(&file, entry.GetFile());
  EXPECT_FALSE(entry.IsDefault());
}

TEST(BundleRef, IsTheDefaultByItsOwnFlag) {
  File english("agent", "en", "agent_en.properties");
  File unlocalised("agent", "", "agent.properties");

  EXPECT_TRUE(Ref("agent", "", english, true).IsDefault());
  EXPECT_TRUE(Ref("agent", "de", unlocalised, true).IsDefault());
  EXPECT_FALSE(Ref("agent", "", english, false).IsDefault());
  EXPECT_FALSE(Ref("agent", "de", unlocalised, false).IsDefault());
}

TEST(BundleRef, LeavesItsFilesTranslatorAlone) {
  FakeTranslator translator;
  File file("agent", "fr", "agent_fr.properties");
  file.Translator([&](const File&) { return &translator; });
  std::unique_ptr<Base> ref = std::make_unique<Ref>("agent", "fr-CA", file, false);

  ref.reset();

  EXPECT_EQ(0, translator.releases);
  EXPECT_EQ(&translator, file.Translator([&](const File&) { return &translator; }));
}

TEST(BundleRef, ReachesTheSameTranslatorAsItsFile) {
  FakeTranslator translator;
  File file("agent", "fr", "agent_fr.properties");
  Ref ref("agent", "fr-CA", file, false);

  EXPECT_EQ(&translator, ref.GetFile()->Translator([&](const File&) { return &translator; }));
  EXPECT_EQ(&translator, file.Translator([](const File&) -> FakeTranslator* { return nullptr; }));
}

}  // namespace
