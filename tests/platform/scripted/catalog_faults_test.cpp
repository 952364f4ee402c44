#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "platform/scripted/scripted_platform.hpp"
#include "support/allocation_counter.hpp"
#include "support/xmc_file_text.hpp"

namespace {

using quor::i18n::message_catalogs;
using quor_test::fresh_disk;
using quor_test::scripted_file;
using quor_test::wide_string;
using quor_test::xmc;
using quor_test::xmc_catalog;

scripted_file file_of(std::string const &key) {
	return scripted_file::with(xmc(xmc_catalog("app", "en", {{key, key}})));
}

TEST(catalog_faults, directory_is_loaded_in_the_order_of_its_listing) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("d")] =
	    scripted_file::listing({QUOR_W("."), QUOR_W("z.xmc"), QUOR_W("s"), QUOR_W("bad.xmc"), QUOR_W("a.xmc")}, 1);
	disk.files[QUOR_W("d\\z.xmc")] = file_of("z");
	disk.files[QUOR_W("d\\s")] = scripted_file::listing({QUOR_W("."), QUOR_W("s.XMC")}, 2);
	disk.files[QUOR_W("d\\s\\s.XMC")] = file_of("s");
	disk.files[QUOR_W("d\\bad.xmc")] = scripted_file::with("no xml");
	disk.files[QUOR_W("d\\a.xmc")] = file_of("a");
	message_catalogs catalogs;
	EXPECT_TRUE(catalogs.load("d", "en") == message_catalogs::load_failed);
	EXPECT_TRUE(catalogs.has_message("app", "z"));
	EXPECT_TRUE(catalogs.has_message("app", "s"));
	EXPECT_FALSE(catalogs.has_message("app", "a"));
}

TEST(catalog_faults, result_is_that_of_the_last_entry) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("d")] = scripted_file::listing({QUOR_W("."), QUOR_W("a.xmc"), QUOR_W("s"), QUOR_W("x.txt")}, 1);
	disk.files[QUOR_W("d\\a.xmc")] = file_of("a");
	disk.files[QUOR_W("d\\x.txt")] = scripted_file::with("");
	disk.files[QUOR_W("d\\s")] = scripted_file::listing({}, 2);
	std::string const plain = "message_catalogs::result_type - No Error";
	message_catalogs catalogs;
	EXPECT_EQ(catalogs.load("d", "en").message(), plain);
	disk.files[QUOR_W("d")].names = {QUOR_W("."), QUOR_W("s"), QUOR_W("a.xmc"), QUOR_W("x.txt"), QUOR_W("gone")};
	EXPECT_EQ(catalogs.load("d", "en").message(), plain + "\n xmc_file_loader::load_error - No Error");
}

TEST(catalog_faults, what_vanishes_before_it_is_looked_at_is_passed_over) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("d")] = scripted_file::listing({QUOR_W("."), QUOR_W("gone.xmc"), QUOR_W("a.xmc")}, 1);
	disk.files[QUOR_W("d\\gone.xmc")] = file_of("gone");
	disk.files[QUOR_W("d\\gone.xmc")].looks = 0;
	disk.files[QUOR_W("d\\a.xmc")] = file_of("a");
	message_catalogs catalogs;
	EXPECT_TRUE(catalogs.load("d", "en") == message_catalogs::no_error);
	EXPECT_EQ(catalogs.size("app"), 1U);
}

TEST(catalog_faults, file_that_vanishes_after_it_was_looked_at_is_not_found) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("d")] = scripted_file::listing({QUOR_W("."), QUOR_W("gone.xmc"), QUOR_W("a.xmc")}, 1);
	disk.files[QUOR_W("d\\gone.xmc")] = file_of("gone");
	disk.files[QUOR_W("d\\gone.xmc")].looks = 1;
	disk.files[QUOR_W("d\\a.xmc")] = file_of("a");
	message_catalogs catalogs;
	auto const result = catalogs.load("d", "en");
	EXPECT_TRUE(result == message_catalogs::file_not_found);
	EXPECT_EQ(result.message(), "message_catalogs::result_type - File was not found on disk\n "
	                            "xmc_file_loader::load_error - File \"d\\gone.xmc\" was not found on disk");
	EXPECT_TRUE(catalogs == quor::types::nil);
}

TEST(catalog_faults, file_that_vanishes_before_it_is_opened_is_empty) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("d")] = scripted_file::listing({QUOR_W("."), QUOR_W("gone.xmc")}, 1);
	disk.files[QUOR_W("d\\gone.xmc")] = file_of("gone");
	disk.files[QUOR_W("d\\gone.xmc")].looks = 2;
	message_catalogs catalogs;
	EXPECT_TRUE(catalogs.load("d", "en") == message_catalogs::load_failed);
}

TEST(catalog_faults, devices_and_unreadable_directories_are_passed_over) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("d")] = scripted_file::listing({QUOR_W("."), QUOR_W("device.xmc"), QUOR_W("closed")}, 1);
	disk.files[QUOR_W("d\\device.xmc")].kind = scripted_file::device;
	disk.files[QUOR_W("d\\closed")] = scripted_file::listing({QUOR_W("."), QUOR_W("a.xmc")}, 2);
	disk.files[QUOR_W("d\\closed")].opens = false;
	disk.files[QUOR_W("d\\closed\\a.xmc")] = file_of("a");
	message_catalogs catalogs;
	EXPECT_TRUE(catalogs.load("d", "en") == message_catalogs::no_error);
	EXPECT_TRUE(catalogs == quor::types::nil);
}

TEST(catalog_faults, file_that_cannot_be_opened_or_is_cut_short_is_a_fault) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f.xmc")] = file_of("k");
	message_catalogs catalogs;
	disk.files[QUOR_W("f.xmc")].opens = false;
	EXPECT_TRUE(catalogs.load("f.xmc", "en") == message_catalogs::load_failed);
	disk.files[QUOR_W("f.xmc")].opens = true;
	for (std::size_t limit = 0; limit != disk.files[QUOR_W("f.xmc")].content.size(); ++limit) {
		SCOPED_TRACE(limit);
		disk.files[QUOR_W("f.xmc")].read_limit = limit;
		EXPECT_TRUE(catalogs.load("f.xmc", "en") == message_catalogs::load_failed);
		EXPECT_TRUE(catalogs == quor::types::nil);
	}
	disk.files[QUOR_W("f.xmc")].read_limit = scripted_file::all;
	EXPECT_TRUE(catalogs.load("f.xmc", "en") == message_catalogs::no_error);
}

TEST(catalog_faults, file_of_impossible_size_throws_and_leaves_the_set) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("good.xmc")] = file_of("good");
	disk.files[QUOR_W("f.xmc")] = file_of("k");
	disk.files[QUOR_W("f.xmc")].size = -1;
	disk.files[QUOR_W("main.xmc")] =
	    scripted_file::with(xmc(xmc_catalog("app", "en", {{"main", "main"}}) + quor_test::xmc_include("f.xmc")));
	disk.files[QUOR_W("./f.xmc")] = disk.files[QUOR_W("f.xmc")];
	message_catalogs catalogs;
	ASSERT_TRUE(catalogs.load("good.xmc", "en") == message_catalogs::no_error);
	EXPECT_THROW(catalogs.load("f.xmc", "en"), std::length_error);
	EXPECT_THROW(catalogs.load("main.xmc", "en"), std::length_error);
	EXPECT_EQ(catalogs.size("app"), 1U);
	EXPECT_EQ(disk.opened, disk.closed);
}

TEST(catalog_faults, directory_that_the_walk_is_inside_of_is_not_entered_again) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("d")] = scripted_file::listing({QUOR_W("."), QUOR_W("self"), QUOR_W("s"), QUOR_W("a.xmc")}, 1);
	disk.files[QUOR_W("d\\self")] = scripted_file::listing({QUOR_W("."), QUOR_W("a.xmc")}, 1);
	disk.files[QUOR_W("d\\self\\a.xmc")] = file_of("wrong");
	disk.files[QUOR_W("d\\s")] = scripted_file::listing({QUOR_W("."), QUOR_W("up"), QUOR_W("b.xmc")}, 2);
	disk.files[QUOR_W("d\\s\\up")] = scripted_file::listing({QUOR_W("."), QUOR_W("a.xmc")}, 1);
	disk.files[QUOR_W("d\\s\\up\\a.xmc")] = file_of("wrong");
	disk.files[QUOR_W("d\\s\\b.xmc")] = file_of("b");
	disk.files[QUOR_W("d\\a.xmc")] = file_of("a");
	message_catalogs catalogs;
	EXPECT_TRUE(catalogs.load("d", "en") == message_catalogs::no_error);
	EXPECT_EQ(catalogs.size("app"), 2U);
	EXPECT_FALSE(catalogs.has_message("app", "wrong"));
}

TEST(catalog_faults, deep_directories_are_not_deep_on_the_call_stack) {
	auto &disk = fresh_disk();
	wide_string path = QUOR_W("d");
	for (std::uint64_t level = 0; level != 2000; ++level) {
		disk.files[path] = scripted_file::listing({QUOR_W("."), QUOR_W("s")}, level + 1);
		path += QUOR_W("\\s");
	}
	disk.files[path] = scripted_file::listing({QUOR_W("."), QUOR_W("a.xmc")}, 5000);
	disk.files[path + QUOR_W("\\a.xmc")] = file_of("a");
	message_catalogs catalogs;
	EXPECT_TRUE(catalogs.load("d", "en") == message_catalogs::no_error);
	EXPECT_TRUE(catalogs.has_message("app", "a"));
}

struct cost {
	std::size_t count;
	std::size_t bytes;
};

cost cost_of_messages(std::size_t messages) {
	auto &disk = fresh_disk();
	std::string content = "<catalog name=\"app\" lang=\"en\">";
	for (std::size_t i = 0; i != messages; ++i) {
		content += "<msg name=\"a key that is not short " + std::to_string(10000 + i) +
		           "\">some text <arg name=\"n\" type=\"int\"/> and more<br/></msg>\n";
	}
	disk.files[QUOR_W("f.xmc")] = scripted_file::with(xmc(content + "</catalog>"));
	message_catalogs catalogs;
	quor_test::allocation_counter const counter;
	auto const result = catalogs.load("f.xmc", "en");
	cost const spent{counter.count(), counter.bytes()};
	EXPECT_TRUE(result == message_catalogs::no_error) << result;
	EXPECT_EQ(catalogs.size("app"), messages);
	return spent;
}

cost cost_of_files(std::size_t files) {
	auto &disk = fresh_disk();
	std::vector<wide_string> names{QUOR_W(".")};
	for (std::size_t i = 0; i != files; ++i) {
		auto const key = std::to_string(10000 + i);
		names.push_back(wide_string(key.begin(), key.end()) + QUOR_W(".xmc"));
		disk.files[QUOR_W("d\\") + names.back()] = file_of(key);
	}
	disk.files[QUOR_W("d")] = scripted_file::listing(names, 1);
	message_catalogs catalogs;
	quor_test::allocation_counter const counter;
	auto const result = catalogs.load("d", "en");
	cost const spent{counter.count(), counter.bytes()};
	EXPECT_TRUE(result == message_catalogs::no_error) << result;
	EXPECT_EQ(catalogs.size("app"), files);
	return spent;
}

TEST(catalog_faults, loading_twice_as_much_takes_at_most_twice_the_memory) {
	for (auto const &measure : {&cost_of_messages, &cost_of_files}) {
		auto const once = measure(400);
		auto const twice = measure(800);
		EXPECT_GT(once.count, 0U);
		EXPECT_LE(twice.count * 10, once.count * 22);
		EXPECT_LE(twice.bytes * 10, once.bytes * 22);
	}
}

TEST(catalog_faults, lookups_by_byte_text_allocate_nothing) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f.xmc")] = file_of("k");
	message_catalogs catalogs;
	ASSERT_TRUE(catalogs.load("f.xmc", "en") == message_catalogs::no_error);
	quor::strings::ustring8 const name = "app";
	quor::strings::ustring8 const key = "a key that is longer than any short string";
	quor_test::allocation_counter const counter;
	auto const &found = catalogs.message(name, key);
	bool const present = catalogs.has_message(name, key);
	EXPECT_EQ(counter.count(), 0U);
	EXPECT_FALSE(present);
	EXPECT_TRUE(found == quor::types::nil);
}

TEST(catalog_faults, want_of_memory_anywhere_leaves_a_set_that_works) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f.xmc")] = scripted_file::with(
	    xmc(xmc_catalog("app", "en", {{"a", "text"}, {"b", "text"}}) + xmc_catalog("other", "de", {{"c", "text"}})));
	message_catalogs catalogs;
	bool done = false;
	for (std::size_t index = 0; !done && index != 5000; ++index) {
		SCOPED_TRACE(index);
		message_catalogs fresh;
		bool thrown = false;
		{
			quor_test::allocation_failure const failure(index);
			try {
				fresh.load("f.xmc", "de");
			} catch (std::bad_alloc const &) {
				thrown = true;
			}
			done = !failure.happened();
		}
		EXPECT_EQ(thrown, !done);
		EXPECT_TRUE(fresh.load("f.xmc", "de") == message_catalogs::no_error);
		EXPECT_EQ(fresh.size("app"), 2U);
		EXPECT_EQ(fresh.size("other"), 1U);
	}
	EXPECT_TRUE(done);
	EXPECT_EQ(disk.opened, disk.closed);
}

} // namespace
