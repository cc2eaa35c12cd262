// Values of variables as the system's command line sets them.

#include <gtest/gtest.h>

#include "process/resource_search.h"

namespace {

using WindowsVariables = ResourceSearch;

// "set NAME=value && host" sets the blank, too.
TEST_F(WindowsVariables, ABlankBehindAValueBelongsToIt) {
  Provide("elsewhere");
  Provide("another");
  tree_.SetEnvironment("TAVI_XLATE_ROOT", tree_.SystemPath("elsewhere") + " ");
  ExpectOrigin("(null)");
  tree_.SetEnvironment("TAVI_AGENT_ROOT", tree_.SystemPath("another"));
  ExpectOrigin("another");
}

}  // namespace
