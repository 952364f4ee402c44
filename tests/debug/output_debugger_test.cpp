// The default debug channel where it is the system's, which raises an exception for a
// debugger.

#include <gtest/gtest.h>

#include <string>

#include <quor/quor.hpp>

#ifndef NOMINMAX
#  define NOMINMAX
#endif
#include <windows.h>

namespace {

std::string seen;

LONG CALLBACK watch(EXCEPTION_POINTERS *raised) {
	constexpr DWORD line_for_a_debugger = 0x40010006;
	EXCEPTION_RECORD const &record = *raised->ExceptionRecord;
	if (record.ExceptionCode != line_for_a_debugger || record.NumberParameters < 2) {
		return EXCEPTION_CONTINUE_SEARCH;
	}
	// The length counts the zero at the end.
	seen.append(reinterpret_cast<char const *>(record.ExceptionInformation[1]), record.ExceptionInformation[0] - 1);
	return EXCEPTION_CONTINUE_SEARCH;
}

TEST(output, default_channel_is_the_systems_debug_output) {
	void *const watching = AddVectoredExceptionHandler(1, &watch);
	quor::debug::output("one ");
	quor::debug::output("caf\xC3\xA9\n");
	RemoveVectoredExceptionHandler(watching);
	EXPECT_EQ(seen, "one caf\xC3\xA9\n");
}

} // namespace
