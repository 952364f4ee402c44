#include "platform/scripted/scripted_code_page.hpp"

#include <algorithm>
#include <cstddef>

#include "platform/code_page.hpp"

namespace quor_test {

scripted_code_page &code_page_service() {
	static scripted_code_page instance;
	return instance;
}

scripted_code_page &fresh_code_page() {
	code_page_service() = scripted_code_page();
	return code_page_service();
}

namespace {

// As the real service: what doesn't fit is cut and makes the answer 0.
template <class Text>
QUOR_2_9::types::int32 answer(code_page_call call, Text const &text, typename Text::value_type *out) {
	code_page_service().calls.push_back(call);
	if (!call.has_out) {
		return code_page_service().needed;
	}
	std::size_t const count = std::min(text.size(), static_cast<std::size_t>(call.out_size));
	std::copy_n(text.begin(), count, out);
	return count == text.size() ? static_cast<QUOR_2_9::types::int32>(count) : 0;
}

} // namespace
} // namespace quor_test

namespace QUOR_2_9::platform {

types::int32 multi_byte_to_wide(types::uint32 page, char const *, types::int32 length, types::wide_char *out,
                                types::int32 out_size) {
	return quor_test::answer({page, length, out != nullptr, out_size}, quor_test::code_page_service().wide, out);
}

types::int32 wide_to_multi_byte(types::uint32 page, types::wide_char const *, types::int32 length, char *out,
                                types::int32 out_size) {
	return quor_test::answer({page, length, out != nullptr, out_size}, quor_test::code_page_service().narrow, out);
}

} // namespace QUOR_2_9::platform
