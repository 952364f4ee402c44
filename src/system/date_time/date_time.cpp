#include <quor/system/date_time/date_time.hpp>

#include "system/date_time/current_time.hpp"

namespace QUOR_2_9::system::date_time {
namespace {

// The date is checked first.
date_time_t date_time_of(platform::wall_clock_fields const &fields) {
	auto const date = detail::date_of(fields);
	return date_time_t(date, detail::time_of(fields));
}

} // namespace

date_time_t date_time_t::local_date_time() {
	return date_time_of(platform::local_wall_clock());
}

date_time_t date_time_t::UTC_date_time() {
	return date_time_of(platform::utc_wall_clock());
}

} // namespace QUOR_2_9::system::date_time
