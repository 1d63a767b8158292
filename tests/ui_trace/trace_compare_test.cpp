// The description of the first difference between two traces.
#include <gtest/gtest.h>

#include "tests/traces/compare.h"

namespace tasca::test {
namespace {

TEST(FirstDifference, IsNothingBetweenEqualTraces) {
  EXPECT_EQ(FirstDifference({"{\"event\":\"state\"}"}, {"{\"event\":\"state\"}"}), std::nullopt);
  EXPECT_EQ(FirstDifference({}, {}), std::nullopt);
}

TEST(FirstDifference, NamesTheLineAndTheField) {
  EXPECT_EQ(FirstDifference({R"({"event":"end"})", R"({"event":"state","Fase":1,"draws":7})"},
                            {R"({"event":"end"})", R"({"event":"state","Fase":2,"draws":8})"}),
            "line 2 (\"state\"), field Fase\n  expected 1\n  got      2");
}

TEST(FirstDifference, ReportsAnAdditionalAndAMissingField) {
  EXPECT_EQ(FirstDifference({R"({"a":1})"}, {R"({"a":1,"b":2})"}),
            "line 1 (nothing), field b\n  expected nothing\n  got      2");
  EXPECT_EQ(FirstDifference({R"({"a":1,"b":2})"}, {R"({"a":1})"}),
            "line 1 (nothing), field b\n  expected 2\n  got      nothing");
}

TEST(FirstDifference, ReportsWhichTraceEndsFirst) {
  EXPECT_EQ(FirstDifference({"{}", "{\"a\":1}"}, {"{}"}),
            "line 2\n  expected {\"a\":1}\n  got      the end");
  EXPECT_EQ(FirstDifference({}, {"{}"}), "line 1\n  expected the end\n  got      {}");
}

TEST(FirstDifference, ComparesTheOrderOfTheFields) {
  EXPECT_EQ(FirstDifference({R"({"a":1,"b":2})"}, {R"({"b":2,"a":1})"}),
            "line 1 (nothing), in how it is written\n  expected {\"a\":1,\"b\":2}\n"
            "  got      {\"b\":2,\"a\":1}");
}

TEST(FirstDifference, AcceptsLinesThatAreNotObjects) {
  EXPECT_EQ(FirstDifference({"{}"}, {"oops"}), "line 1\n  expected {}\n  got      oops");
}

}  // namespace
}  // namespace tasca::test
