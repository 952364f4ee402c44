#include <quor/system/date_time/time.hpp>

#include "system/date_time/current_time.hpp"

namespace QUOR_2_9::system::date_time {

time time::local_time() {
	return detail::time_of(platform::local_wall_clock());
}

time time::UTC_time() {
	return detail::time_of(platform::utc_wall_clock());
}

} // namespace QUOR_2_9::system::date_time
