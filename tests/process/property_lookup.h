#ifndef KX_TESTS_PROCESS_PROPERTY_LOOKUP_H
#define KX_TESTS_PROCESS_PROPERTY_LOOKUP_H

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/host_tree.h"

/// A product whose bundle "agent" has a default, English, French and Canadian French.
class PropertyLookup : public testing::Test {
 protected:
  PropertyLookup() {
    Write("agent.properties", "Hello=Hi\nOnlyDefault=x\n");
    Write("agent_en.properties", "Hello=Hello\n");
    Write("agent_fr.properties", "Hello=Bonjour\nOnlyFrench=x\nEmpty=\n");
    Write("agent_fr_CA.properties", "Hello=Allo\n");
  }

  void Write(const std::string& name, const std::string& bytes) {
    tree_.Write("product/resources/" + name, bytes);
  }

  /// What a host prints that takes these steps without a problem.
  std::string Output(const std::vector<std::string>& steps) const {
    const HostRun run = tree_.RunHostIn("product/bin", steps);
    EXPECT_EQ(0, run.exitCode);
    EXPECT_EQ("", run.errors);
    return run.output;
  }

  std::string Log() const { return tree_.Read("product/log/translate.log"); }

  /// The library's path of a bundle file; it begins as the system tells the executable's.
  std::string BundlePath(const std::string& name) const {
    return tree_.SystemPath("product") + "/resources/" + name;
  }

  /// The log's line for a key that the file lacks.
  std::string Line(const std::string& name, const std::string& key) const {
    return BundlePath(name) + " key not found: " + key + "\n";
  }

  HostTree tree_;
};

#endif  // KX_TESTS_PROCESS_PROPERTY_LOOKUP_H
