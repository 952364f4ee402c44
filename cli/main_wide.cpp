// The entry for systems that hand over their arguments in UTF-16.

#include <quor/quor.hpp>

#include "program.hpp"

namespace {

std::string utf8(wchar_t const *text) {
	return quor::strings::utf16_to_utf8(quor::strings::from_native_wide(text));
}

} // namespace

extern "C" int wmain(int count, wchar_t **words, wchar_t **environment) {
	quor_cli::invocation call;
	for (int i = 1; i < count; ++i) {
		call.arguments.push_back(utf8(words[i]));
	}
	for (wchar_t **each = environment; each != nullptr && *each != nullptr; ++each) {
		call.environment.push_back(utf8(*each));
	}
	return quor_cli::run(call);
}
