#include <quor/system/date_time/date.hpp>

#include "system/date_time/current_time.hpp"

namespace QUOR_2_9::system::date_time {

date date::local_date() {
	return detail::date_of(platform::local_wall_clock());
}

date date::UTC_date() {
	return detail::date_of(platform::utc_wall_clock());
}

} // namespace QUOR_2_9::system::date_time
