#include "report/coverage_report.hpp"

#include <algorithm>
#include <ostream>

#include "report/json.hpp"

namespace quor_cli {

namespace {

// What stands in the matrix: "own", the language that the text comes from, or "-".
std::string cell(covered_text const &text, std::string const &language) {
	if (!text.exists) {
		return "-";
	}
	return text.origin == language ? "own" : printable(text.origin);
}

colour colour_of(covered_text const &text, std::string const &language) {
	return !text.exists ? colour::red : text.origin == language ? colour::green : colour::yellow;
}

// A table whose columns are as wide as their widest cell.
class text_table {
public:
	explicit text_table(terminal &to) : m_to(to) {}

	void add(std::vector<std::string> row) {
		m_widths.resize(std::max(m_widths.size(), row.size()));
		for (std::size_t i = 0; i != row.size(); ++i) {
			m_widths[i] = std::max(m_widths[i], columns(row[i]));
		}
		m_rows.push_back(std::move(row));
	}

	// paint gives a cell its colours; it is handed the padded cell.
	template <class Paint>
	void write(Paint paint) const {
		for (std::size_t row = 0; row != m_rows.size(); ++row) {
			std::string line;
			for (std::size_t i = 0; i != m_rows[row].size(); ++i) {
				bool const is_last = i + 1 == m_rows[row].size();
				line += paint(row, i, is_last ? m_rows[row][i] : padded(m_rows[row][i], m_widths[i] + 2));
			}
			m_to.out << line << '\n';
		}
	}

private:
	terminal &m_to;
	std::vector<std::vector<std::string>> m_rows;
	std::vector<std::size_t> m_widths;
};

void write_matrix(coverage const &measured, terminal &to) {
	text_table table(to);
	std::vector<std::string> head{"message"};
	for (std::string const &language : measured.languages) {
		head.push_back(printable(language));
	}
	table.add(std::move(head));
	for (covered_message const &message : measured.messages) {
		std::vector<std::string> row{printable(message.catalog + "/" + message.key)};
		for (std::size_t i = 0; i != measured.languages.size(); ++i) {
			row.push_back(cell(message.texts[i], measured.languages[i]));
		}
		table.add(std::move(row));
	}
	table.write([&](std::size_t row, std::size_t column, std::string const &text) {
		if (row == 0) {
			return coloured(text, colour::bold, to.out_has_colours);
		}
		if (column == 0) {
			return text;
		}
		covered_text const &covered = measured.messages[row - 1].texts[column - 1];
		return coloured(text, colour_of(covered, measured.languages[column - 1]), to.out_has_colours);
	});
}

void write_totals(coverage const &measured, terminal &to) {
	text_table table(to);
	table.add({"language", "own", "inherited", "missing", "own %", "shown %", "inherited from"});
	std::size_t const all = measured.messages.size();
	for (std::size_t i = 0; i != measured.languages.size(); ++i) {
		language_total const &total = measured.totals[i];
		std::string from;
		for (auto const &[language, count] : total.from) {
			from += (from.empty() ? "" : ", ") + printable(language) + " " + std::to_string(count);
		}
		table.add({printable(measured.languages[i]), std::to_string(total.own), std::to_string(total.inherited),
		           std::to_string(total.missing), percentage(total.own, all),
		           percentage(total.own + total.inherited, all), from});
	}
	table.write([&](std::size_t row, std::size_t, std::string text) {
		text.erase(text.find_last_not_of(' ') == std::string::npos ? 0 : text.size());
		return row == 0 ? coloured(text, colour::bold, to.out_has_colours) : text;
	});
}

} // namespace

void write_coverage_text(coverage const &measured, terminal &to) {
	write_matrix(measured, to);
	to.out << '\n';
	write_totals(measured, to);
	std::size_t const count = measured.messages.size();
	to.out << count << (count == 1 ? " message\n" : " messages\n");
}

void write_coverage_json(coverage const &measured, std::ostream &out) {
	using json = nlohmann::ordered_json;
	json languages = json::array();
	for (std::size_t i = 0; i != measured.languages.size(); ++i) {
		language_total const &total = measured.totals[i];
		json from = json::object();
		for (auto const &[language, count] : total.from) {
			from[valid_utf8(language)] = count;
		}
		languages.push_back({{"language", measured.languages[i]},
		                     {"own", total.own},
		                     {"inherited", total.inherited},
		                     {"missing", total.missing},
		                     {"inherited_from", from}});
	}
	json messages = json::array();
	for (covered_message const &message : measured.messages) {
		json texts = json::object();
		for (std::size_t i = 0; i != measured.languages.size(); ++i) {
			covered_text const &text = message.texts[i];
			json &entry = texts[valid_utf8(measured.languages[i])];
			entry = {{"state", !text.exists                           ? "missing"
			                   : text.origin == measured.languages[i] ? "own"
			                                                          : "inherited"},
			         {"from", text.origin},
			         {"text", text.text}};
		}
		messages.push_back(
		    {{"catalog", message.catalog}, {"message", message.key}, {"meta", message.meta}, {"languages", texts}});
	}
	write_json({{"languages", languages}, {"messages", messages}}, out);
}

} // namespace quor_cli
