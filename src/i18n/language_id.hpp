#ifndef QUOR_I18N_LANGUAGE_ID_HPP
#define QUOR_I18N_LANGUAGE_ID_HPP

#include <algorithm>

#include <quor/strings/ustring.hpp>

namespace QUOR_2_9::i18n::detail {

/// A language id as queries spell it: "en-US" and "en.US" are "en_US", and "." is "_".
inline strings::ustring8 queried_language(strings::ustring8 id) {
	std::replace_if(
	    id.begin(), id.end(), [](char unit) { return unit == '.' || unit == '-'; }, '_');
	return id;
}

} // namespace QUOR_2_9::i18n::detail

#endif
