// Dates and day numbers beside std::chrono, and the current date and time beside the C library.

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <random>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "frame/frame.hpp"

namespace {

namespace date_time = quor::system::date_time;
using date_time::date;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr std::size_t count = 1024;

// The number of 1 January 1970.
constexpr unsigned epoch = 719469;

// Days of the years 1900 to 2099 in no order; the leap days are left out, as numbers don't
// give them back.
std::vector<unsigned> const &numbers() {
	static std::vector<unsigned> const result = [] {
		std::vector<unsigned> list;
		std::mt19937 random(2900);
		unsigned const first = date(1, 1, 1900).pJulian_day_number();
		unsigned const days = date(31, 12, 2099).pJulian_day_number() - first;
		while (list.size() != count) {
			auto const number = static_cast<unsigned>(first + random() % days);
			date day;
			day.pJulian_day_number(number);
			if (day.pJulian_day_number() == number) {
				list.push_back(number);
			}
		}
		return list;
	}();
	return result;
}

std::vector<date> const &dates() {
	static std::vector<date> const result = [] {
		std::vector<date> list(count);
		for (std::size_t i = 0; i != count; ++i) {
			list[i].pJulian_day_number(numbers()[i]);
		}
		return list;
	}();
	return result;
}

std::vector<year_month_day> const &chrono_dates() {
	static std::vector<year_month_day> const result = [] {
		std::vector<year_month_day> list;
		for (unsigned const number : numbers()) {
			list.emplace_back(sys_days(std::chrono::days(static_cast<int>(number - epoch))));
		}
		return list;
	}();
	return result;
}

// Each item of a list through one function, on its own.
template <class List, class Function>
void each(benchmark::State &state, List const &list, Function const &function) {
	for (auto _ : state) {
		for (auto item : list) {
			benchmark::DoNotOptimize(item);
			benchmark::DoNotOptimize(function(item));
		}
	}
	state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * count));
}

date there_and_back(date const &day, unsigned step) {
	date result;
	result.pJulian_day_number(day.pJulian_day_number() + step);
	return result;
}

year_month_day there_and_back(year_month_day const &day, unsigned step) {
	return sys_days(day) + std::chrono::days(step);
}

// Every result is the next one's start, as in a loop over the days of a calendar.
template <class Date>
void day_by_day(benchmark::State &state, Date day) {
	for (auto _ : state) {
		for (std::size_t i = 0; i != count; ++i) {
			day = there_and_back(day, 1);
		}
		benchmark::DoNotOptimize(day);
	}
	state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * count));
}

void describe_day_numbers() {
	for (std::size_t i = 0; i != count; ++i) {
		date const day = dates()[i];
		year_month_day const other = chrono_dates()[i];
		if (day.day() != static_cast<unsigned>(other.day()) || day.month() != static_cast<unsigned>(other.month()) ||
		    static_cast<int>(day.year()) != static_cast<int>(other.year()) ||
		    static_cast<int>(day.pJulian_day_number() - epoch) != sys_days(other).time_since_epoch().count()) {
			bench::disagree("the date of the number " + std::to_string(numbers()[i]));
		}
	}
	char const *const peer = "std::chrono";
	bench::operation("day number of a date", bench::library, [](benchmark::State &state) {
		each(state, dates(), [](date const &day) { return day.pJulian_day_number(); });
	});
	bench::operation("day number of a date", peer, [](benchmark::State &state) {
		each(state, chrono_dates(), [](year_month_day const &day) { return sys_days(day).time_since_epoch().count(); });
	});
	bench::operation("date of a day number", bench::library, [](benchmark::State &state) {
		each(state, numbers(), [](unsigned number) {
			date day;
			day.pJulian_day_number(number);
			return day;
		});
	});
	bench::operation("date of a day number", peer, [](benchmark::State &state) {
		each(state, numbers(), [](unsigned number) {
			return year_month_day(sys_days(std::chrono::days(static_cast<int>(number - epoch))));
		});
	});
	bench::operation("date to day number and back", bench::library, [](benchmark::State &state) {
		each(state, dates(), [](date const &day) { return there_and_back(day, 0); });
	});
	bench::operation("date to day number and back", peer, [](benchmark::State &state) {
		each(state, chrono_dates(), [](year_month_day const &day) { return there_and_back(day, 0); });
	});
	bench::operation("the day after, one by one", bench::library,
	                 [](benchmark::State &state) { day_by_day(state, date(1, 1, 1970)); });
	bench::operation("the day after, one by one", peer,
	                 [](benchmark::State &state) { day_by_day(state, year_month_day(sys_days())); });
	for (char const *operation :
	     {"day number of a date", "date of a day number", "date to day number and back", "the day after, one by one"}) {
		bench::limit(operation, peer, 1.5, 1);
	}
}

// What the library gives, by the C library's own functions.
struct civil_now {
	tm parts;
	long milliseconds;
};

template <auto Convert>
civil_now with_c_library() {
	timespec now;
	clock_gettime(CLOCK_REALTIME, &now);
	civil_now result;
	Convert(&now.tv_sec, &result.parts);
	result.milliseconds = now.tv_nsec / 1000000;
	return result;
}

template <auto Read>
void read_clock(benchmark::State &state) {
	for (auto _ : state) {
		benchmark::DoNotOptimize(Read());
	}
}

void describe_current_time() {
	auto const before = with_c_library<&gmtime_r>();
	auto const between = date_time::date_time_t::UTC_date_time();
	auto const after = with_c_library<&gmtime_r>();
	auto const year = static_cast<int>(between.year()) - 1900;
	if (year < before.parts.tm_year || year > after.parts.tm_year) {
		bench::disagree("the current year");
	}
	using date_time::date_time_t;
	bench::operation("current local date and time", bench::library, &read_clock<&date_time_t::local_date_time>);
	bench::operation("current local date and time", "clock_gettime, localtime_r",
	                 &read_clock<&with_c_library<&localtime_r>>);
	bench::operation("current date and time in UTC", bench::library, &read_clock<&date_time_t::UTC_date_time>);
	bench::operation("current date and time in UTC", "clock_gettime, gmtime_r",
	                 &read_clock<&with_c_library<&gmtime_r>>);
	bench::limit("current local date and time", "clock_gettime, localtime_r", 1.2);
	bench::limit("current date and time in UTC", "clock_gettime, gmtime_r", 1.5, 1.2);
}

bench::entry const day_numbers(&describe_day_numbers);
bench::entry const current_time(&describe_current_time);

} // namespace
