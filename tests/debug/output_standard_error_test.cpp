// The default debug channel where it is the standard error stream.

#include <gtest/gtest.h>

#include <quor/quor.hpp>

namespace {

TEST(output, default_channel_is_the_standard_error_stream) {
	testing::internal::CaptureStderr();
	quor::debug::output("one ");
	quor::debug::output("line\n");
	EXPECT_EQ(testing::internal::GetCapturedStderr(), "one line\n");
}

} // namespace
