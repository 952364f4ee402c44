#ifndef QUOR_TESTS_PLATFORM_SCRIPTED_SCRIPTED_CODE_PAGE_HPP
#define QUOR_TESTS_PLATFORM_SCRIPTED_SCRIPTED_CODE_PAGE_HPP

// A code page service that answers what it is told and remembers how it was called.
//
//     auto &service = quor_test::fresh_code_page();
//     service.needed = 0;                              // every conversion fails

#include <string>
#include <vector>

#include <quor/types/widths.hpp>

namespace quor_test {

struct code_page_call {
	QUOR_2_9::types::uint32 page = 0;
	QUOR_2_9::types::int32 length = 0;
	bool has_out = false;
	QUOR_2_9::types::int32 out_size = 0;
};

struct scripted_code_page {
	QUOR_2_9::types::int32 needed = 0; // the answer where only the size is asked for
	std::string narrow;                // what conversions write, as far as there is room
	QUOR_2_9::types::wide_string wide; // the same, of units
	std::vector<code_page_call> calls;
};

// The one service that the platform shows; and the same after it was emptied.
scripted_code_page &code_page_service();
scripted_code_page &fresh_code_page();

} // namespace quor_test

#endif
