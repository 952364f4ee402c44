#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

#include <quor/quor.hpp>

#include "platform/scripted/scripted_platform.hpp"
#include "support/config_listing.hpp"
#include "support/stop_handler.hpp"

namespace {

using quor::config::file_item;
using quor_test::fresh_disk;
using quor_test::listing_text;
using quor_test::scripted_file;

std::string loaded() {
	file_item item("f");
	item.set("old", "value", 0);
	EXPECT_TRUE(item.load());
	return listing_text(item);
}

TEST(config_file_faults, load_of_a_file_that_does_not_open_leaves_the_tree) {
	auto &disk = fresh_disk();
	EXPECT_EQ(loaded(), "old:1=value");
	disk.files[QUOR_W("f")] = scripted_file::with("aa = 1\n");
	disk.files[QUOR_W("f")].opens = false;
	EXPECT_EQ(loaded(), "old:1=value");
	disk.files[QUOR_W("f")].kind = scripted_file::device;
	EXPECT_EQ(loaded(), "old:1=value");
}

TEST(config_file_faults, load_of_a_file_without_a_usable_size_leaves_the_tree) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f")] = scripted_file::with("aa = 1\n");
	for (std::int64_t const size : {std::int64_t(-1), std::int64_t(0xFFFFFFFE), std::int64_t(0xFFFFFFFF),
	                                (std::numeric_limits<std::int64_t>::max)()}) {
		SCOPED_TRACE(size);
		disk.files[QUOR_W("f")].size = size;
		EXPECT_EQ(loaded(), "old:1=value");
	}
	EXPECT_EQ(disk.opened, disk.closed);
}

TEST(config_file_faults, load_with_a_short_read_reads_zeros) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f")] = scripted_file::with("aa = 1\nbb = 2\n");
	disk.files[QUOR_W("f")].read_limit = 12;
	EXPECT_EQ(loaded(), "aa:1=1 bb:1=" + std::string(2, '\0') + " old:1=value");
}

TEST(config_file_faults, load_list_asks_the_disk_for_candidates_in_order) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("closed")] = scripted_file::with("aa = closed\n");
	disk.files[QUOR_W("closed")].opens = false;
	disk.files[QUOR_W("device")].kind = scripted_file::device;
	disk.files[QUOR_W("directory")].kind = scripted_file::directory;
	disk.files[QUOR_W("app.cfg")] = scripted_file::with("aa = app\n");
	quor::config::base_config_item::item_list items;
	for (char const *name : {"closed", "device", "directory", "missing"}) {
		items.emplace_back(quor::generic::abilities::create_dynamic<quor::config::user_item>());
		items.back()->set("cfg_file", name, 0);
	}
	items.back()->set("application.name.raw", "app", 0);
	file_item item("");
	EXPECT_TRUE(item.load(items));
	EXPECT_EQ(item.get_filename(), "app.cfg");
	EXPECT_EQ(listing_text(item), "aa:1=app");
	EXPECT_EQ(disk.opened, disk.closed);
}

TEST(config_file_faults, save_on_a_failing_disk_returns_true) {
	auto &disk = fresh_disk();
	file_item item("f");
	item.set("s.key", "value", 0);
	disk.full = true;
	EXPECT_TRUE(item.save());
	EXPECT_EQ(disk.files.count(QUOR_W("f")), 0U);
	disk.full = false;
	disk.files[QUOR_W("f")] = scripted_file::with("");
	disk.files[QUOR_W("f")].write_limit = 3;
	EXPECT_TRUE(item.save());
	EXPECT_EQ(disk.files[QUOR_W("f")].content, "[s]");
}

TEST(config_file_faults, save_that_stops_does_not_open_the_file) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f")] = scripted_file::with("old");
	file_item item("f");
	item.set_array("s.key", quor::generic::varg_list("p"), quor::generic::varg_list());
	quor_test::stop_handler const stops(quor_test::on_stop::throws);
	EXPECT_THROW(item.save(), quor_test::stopped);
	EXPECT_EQ(disk.opened, 0U);
	EXPECT_EQ(disk.files[QUOR_W("f")].content, "old");
}

} // namespace
