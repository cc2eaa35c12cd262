#ifndef KX_TESTS_BUNDLES_PROPERTIES_TRANSLATOR_H
#define KX_TESTS_BUNDLES_PROPERTIES_TRANSLATOR_H

#include <gtest/gtest.h>

#include <string>

#include "bundles/properties_xlate.h"
#include "support/temp_tree.h"

/// A translator of the file "agent_fr_CA.properties". Tests do not ask it for absent keys: that
/// would write to the log of this process.
class PropertiesTranslator : public testing::Test {
 protected:
  ~PropertiesTranslator() override {
    if (translator_ != nullptr) translator_->Release();
  }

  PropertiesXlate& Read(const std::string& bytes) {
    tree_.Write("agent_fr_CA.properties", bytes);
    translator_ = new PropertiesXlate(&file_);
    return *translator_;
  }

  TempTree tree_;
  bnd::BundleFile<CKxXlate> file_{"agent", "fr_CA", tree_.Path("agent_fr_CA.properties")};
  PropertiesXlate* translator_ = nullptr;
};

#endif  // KX_TESTS_BUNDLES_PROPERTIES_TRANSLATOR_H
