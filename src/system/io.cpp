#include <quor/system/io.hpp>

#include "platform/file_changes.hpp"
#include "system/examine.hpp"
#include "system/wide_path.hpp"

namespace QUOR_2_9::system::io {
namespace {

using detail::to_wide;
using strings::ustring16;
using strings::ustring32;
using strings::ustring8;

} // namespace

bool exists(ustring8 const &path) {
	return exists(to_wide(path));
}

bool exists(ustring16 const &path) {
	return detail::examine(path).has_value();
}

bool exists(ustring32 const &path) {
	return exists(to_wide(path));
}

bool is_directory(ustring8 const &path) {
	return is_directory(to_wide(path));
}

bool is_directory(ustring16 const &path) {
	auto const found = detail::examine(path);
	return found && found->is_directory;
}

bool is_directory(ustring32 const &path) {
	return is_directory(to_wide(path));
}

bool is_file(ustring8 const &path) {
	return is_file(to_wide(path));
}

bool is_file(ustring16 const &path) {
	auto const found = detail::examine(path);
	return found && found->is_file;
}

bool is_file(ustring32 const &path) {
	return is_file(to_wide(path));
}

void move(ustring8 const &target, ustring8 const &source) {
	move(to_wide(target), to_wide(source));
}

void move(ustring16 const &target, ustring16 const &source) {
	platform::rename_without_replacing(source, target);
}

void move(ustring32 const &target, ustring32 const &source) {
	move(to_wide(target), to_wide(source));
}

void remove_file(ustring8 const &path) {
	remove_file(to_wide(path));
}

void remove_file(ustring16 const &path) {
	platform::remove_file(path);
}

void remove_file(ustring32 const &path) {
	remove_file(to_wide(path));
}

void remove_dir(ustring8 const &path) {
	remove_dir(to_wide(path));
}

void remove_dir(ustring16 const &path) {
	platform::remove_directory(path);
}

void remove_dir(ustring32 const &path) {
	remove_dir(to_wide(path));
}

} // namespace QUOR_2_9::system::io
