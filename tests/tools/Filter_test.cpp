// Which members a filter lets through.
#include "orrery/Filter.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace orrery::tool {
namespace {

bool Takes(const char* filter, const Node& member) {
    return Filter(filter).Takes(&member);
}

Node Code(int code, const char* name) {
    Node node = Node::Inline();
    node.Add("code", Node::Number(code)).Add("name", Node::Text(name));
    return node;
}

TEST(Filter, ComparesNumbersAsNumbers) {
    const Node nine = Node::Number(9);
    EXPECT_TRUE(Takes("n>8", nine));
    EXPECT_FALSE(Takes("n>9", nine));
    EXPECT_TRUE(Takes("n>=9", nine));
    EXPECT_TRUE(Takes("n<10", nine)); // as texts it would be the other way round
    EXPECT_FALSE(Takes("n<9", nine));
    EXPECT_TRUE(Takes("n<=9", nine));
    EXPECT_TRUE(Takes("n=9.0", nine));
    EXPECT_FALSE(Takes("n!=9", nine));
    EXPECT_FALSE(Takes("n<3", Node::Text("two")));
    EXPECT_FALSE(Takes("n>3", Node::Text("two")));
}

TEST(Filter, ComparesTextsWithoutCase) {
    const Node door = Node::Text("Back \"Door\"\n");
    EXPECT_TRUE(Takes("sz=back \"door\"\n", door));
    EXPECT_FALSE(Takes("sz=back", door));
    EXPECT_TRUE(Takes("sz~DOOR", door));
    EXPECT_FALSE(Takes("sz~window", door));
    EXPECT_TRUE(Takes("sz!=back", door));
}

TEST(Filter, KnowsCodesByNumberAndName) {
    EXPECT_TRUE(Takes("em=Exit", Code(2, "Exit")));
    EXPECT_TRUE(Takes("em=2", Code(2, "Exit")));
    EXPECT_FALSE(Takes("em=Entry", Code(2, "Exit")));
    EXPECT_FALSE(Takes("em!=Exit", Code(2, "Exit")));
    EXPECT_FALSE(Takes("em!=2", Code(2, "Exit")));
    EXPECT_TRUE(Takes("em!=1", Code(2, "Exit")));
}

TEST(Filter, AloneWantsSomethingThere) {
    EXPECT_TRUE(Takes("n", Node::Number(-1)));
    EXPECT_FALSE(Takes("n", Node::Number(0)));
    EXPECT_FALSE(Takes("sz", Node::Text("")));
    EXPECT_TRUE(Takes("sz", Node::Text("x")));
    EXPECT_FALSE(Takes("p", Node::Null()));
    EXPECT_FALSE(Takes("list", Node::Array()));
    EXPECT_FALSE(Filter("none").Takes(nullptr));
    EXPECT_FALSE(Filter("none=1").Takes(nullptr));
    EXPECT_TRUE(Filter("none!=1").Takes(nullptr));
}

TEST(Filter, RefusesWhatIsNone) {
    for (const char* const text : {"", "=3", "n!3", "n>", "n>many", "<3"})
        EXPECT_THROW(Filter{text}, std::invalid_argument) << text;
    EXPECT_EQ(Filter("stuObject.nID=").path(), "stuObject.nID");
}

} // namespace
} // namespace orrery::tool
