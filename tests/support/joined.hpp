#ifndef QUOR_TESTS_SUPPORT_JOINED_HPP
#define QUOR_TESTS_SUPPORT_JOINED_HPP

// Texts one behind the other.
//
//     quor_test::joined({header, "<r>", body})

#include <initializer_list>
#include <string>
#include <string_view>

namespace quor_test {

inline std::string joined(std::initializer_list<std::string_view> parts) {
	std::string result;
	for (std::string_view const part : parts) {
		result += part;
	}
	return result;
}

} // namespace quor_test

#endif
