#include "platform/wall_clock.hpp"

#include <ctime>

#include "platform/posix/broken_down_time.hpp"

namespace QUOR_2_9::platform {
namespace {

wall_clock_fields fields_of(tm const *parts, long nanoseconds) noexcept {
	wall_clock_fields fields;
	// Null for a year beyond what an int holds.
	if (parts != nullptr) {
		fields.year = static_cast<std::uint32_t>(parts->tm_year) + 1900U;
		fields.month = static_cast<std::uint16_t>(parts->tm_mon + 1);
		fields.day = static_cast<std::uint16_t>(parts->tm_mday);
		fields.hour = static_cast<std::uint16_t>(parts->tm_hour);
		fields.minute = static_cast<std::uint16_t>(parts->tm_min);
		fields.second = static_cast<std::uint16_t>(parts->tm_sec);
		fields.millisecond = static_cast<std::uint16_t>(nanoseconds / 1000000);
	}
	return fields;
}

} // namespace

wall_clock_fields local_fields(timespec const &moment) noexcept {
	tm parts;
	return fields_of(localtime_r(&moment.tv_sec, &parts), moment.tv_nsec);
}

wall_clock_fields utc_fields(timespec const &moment) noexcept {
	tm parts;
	return fields_of(gmtime_r(&moment.tv_sec, &parts), moment.tv_nsec);
}

wall_clock_fields local_wall_clock() noexcept {
	timespec now;
	clock_gettime(CLOCK_REALTIME, &now);
	return local_fields(now);
}

wall_clock_fields utc_wall_clock() noexcept {
	timespec now;
	clock_gettime(CLOCK_REALTIME, &now);
	return utc_fields(now);
}

} // namespace QUOR_2_9::platform
