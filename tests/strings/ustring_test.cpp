#include <quor/quor.hpp>

namespace {

using quor::strings::ustring8;

TEST(ustring, concatenation_keeps_the_class) {
	ustring8 const text = ustring8("a") + "b";
	EXPECT_EQ(text, "ab");
}

} // namespace
