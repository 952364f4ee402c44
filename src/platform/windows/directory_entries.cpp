#include "platform/directory_entries.hpp"

#include <memory>

#include "platform/windows/windows_api.hpp"

namespace QUOR_2_9::platform {
namespace {

struct close_search {
	using pointer = HANDLE;
	void operator()(HANDLE search) const noexcept { FindClose(search); }
};

} // namespace

std::vector<types::wide_string> directory_entries(types::wide_string const &directory) {
	std::vector<types::wide_string> names;
	if (directory.empty() || directory.find(L'\0') != types::wide_string::npos) {
		return names;
	}
	WIN32_FIND_DATAW entry = {};
	HANDLE const search = FindFirstFileW((directory + L"\\*").c_str(), &entry);
	if (search == INVALID_HANDLE_VALUE) {
		return names;
	}
	std::unique_ptr<HANDLE, close_search> const open(search);
	do {
		names.emplace_back(entry.cFileName);
	} while (FindNextFileW(search, &entry));
	return names;
}

} // namespace QUOR_2_9::platform
