#include <gtest/gtest.h>

#include <quor/quor.hpp>

namespace {

TEST(program_path, is_cut_at_slashes_and_backslashes) {
	for (char const *const program : {"/usr/bin/tool.exe", "./tool.exe", "..\\tool.exe", "tool.exe"}) {
		char const *const argv[] = {program, nullptr};
		quor::config::commandline_item item(1, argv);
		item.load();
		EXPECT_EQ(item.get_value("application.name")->second.as_utf8(), "tool.exe");
		EXPECT_EQ(item.get_value("application.name.raw")->second.as_utf8(), "tool");
	}
}

} // namespace
