#include "i18n/item_type_word.hpp"

#include <algorithm>
#include <utility>

#include "support/ascii.hpp"

namespace QUOR_2_9::i18n::detail {

message_item::type_t type_of_word(std::string_view word) noexcept {
	static constexpr std::pair<std::string_view, message_item::type_t> words[] = {
	    {"value", message_item::type_value},
	    {"string", message_item::type_string},
	    {"number", message_item::type_number},
	    {"int", message_item::type_int},
	    {"double", message_item::type_double},
	    {"time", message_item::type_time},
	    {"date", message_item::type_date},
	    {"memory", message_item::type_memory},
	    {"mem", message_item::type_memory},
	    {"mem_unit", message_item::type_memory_unit},
	    {"memory_unit", message_item::type_memory_unit},
	    {"metric", message_item::type_metric},
	    {"metric_unit", message_item::type_metric_unit},
	    {"duration", message_item::type_duration},
	};
	for (auto const &[text, type] : words) {
		if (std::equal(text.begin(), text.end(), word.begin(), word.end(),
		               [](char lower, char unit) { return support::to_lower(unit) == lower; })) {
			return type;
		}
	}
	return message_item::type_string;
}

} // namespace QUOR_2_9::i18n::detail
