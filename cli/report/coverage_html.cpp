#include "report/coverage_report.hpp"
#include "report/page_parts.hpp"

namespace quor_cli {

namespace {

// A text of the catalogs, fit for content and for attributes in double quotes.
std::string escaped(std::string const &text) {
	std::string result;
	for (char const each : printable(text, true)) {
		switch (each) {
		case '&':
			result += "&amp;";
			break;
		case '<':
			result += "&lt;";
			break;
		case '>':
			result += "&gt;";
			break;
		case '"':
			result += "&quot;";
			break;
		case '\'':
			result += "&#39;";
			break;
		default:
			result += each;
		}
	}
	return result;
}

std::string number(std::size_t value) {
	return std::to_string(value);
}

char const *state_of(covered_text const &text, std::string const &language) {
	return !text.exists ? "missing" : text.origin == language ? "own" : "inherited";
}

void add_bar(std::string &page, char const *state, std::size_t part, std::size_t all) {
	if (part != 0) {
		page.append("<i class=\"")
		    .append(state)
		    .append("\" style=\"width:")
		    .append(percentage(part, all))
		    .append("\"></i>");
	}
}

void add_card(std::string &page, std::string const &language, language_total const &total, std::size_t all) {
	page.append("<section class=\"card\"><h2>").append(escaped(language)).append("<span>");
	page.append(percentage(total.own, all)).append("</span></h2><div class=\"bar\">");
	add_bar(page, "own", total.own, all);
	add_bar(page, "inherited", total.inherited, all);
	add_bar(page, "missing", total.missing, all);
	page.append("</div><p>").append(number(total.own)).append(" own, ");
	page.append(number(total.inherited)).append(" inherited, ").append(number(total.missing)).append(" missing</p>");
	std::string from;
	for (auto const &[origin, count] : total.from) {
		from += (from.empty() ? "" : ", ") + number(count) + (origin == "." ? " neutral" : " from " + escaped(origin));
	}
	page.append(from.empty() ? "" : "<p>" + from + "</p>").append("</section>\n");
}

void add_message(std::string &page, coverage const &measured, covered_message const &message) {
	page.append("<tr class=\"message\"><td><button aria-expanded=\"false\"><span class=\"catalog\">");
	page.append(escaped(message.catalog)).append("/</span>").append(escaped(message.key)).append("</button>");
	if (!message.meta.empty()) {
		page.append("<span class=\"meta\">").append(escaped(message.meta)).append("</span>");
	}
	page.append("</td>");
	std::string texts;
	for (std::size_t i = 0; i != measured.languages.size(); ++i) {
		covered_text const &text = message.texts[i];
		std::string const state = state_of(text, measured.languages[i]);
		// A text that is the same in every language is no sign of work to do.
		bool const is_neutral = state == "inherited" && text.origin == ".";
		std::string const origin = is_neutral ? "neutral" : state == "inherited" ? escaped(text.origin) : state;
		page.append("<td class=\"state\"><span class=\"chip ").append(state);
		page.append(is_neutral ? " neutral\">" : "\">");
		page.append(origin).append("</span></td>");
		texts.append("<dt>").append(escaped(measured.languages[i])).append("</dt><dd dir=\"auto\" class=\"");
		texts.append(state).append("\">").append(text.exists ? escaped(text.text) : "no text").append("</dd>");
	}
	page.append("</tr>\n<tr class=\"texts\" hidden><td colspan=\"").append(number(measured.languages.size() + 1));
	page.append("\"><dl>").append(texts).append("</dl></td></tr>\n");
}

} // namespace

std::string coverage_html(coverage const &measured) {
	std::size_t const all = measured.messages.size();
	std::string page = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
	                   "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
	                   "style-src 'unsafe-inline'; script-src 'unsafe-inline'\">\n"
	                   "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
	                   "<title>Coverage of the catalogs</title>\n<style>";
	page.append(page_style).append("</style>\n<noscript><style>tr.texts { display: table-row !important; } ");
	page.append(".tools { display: none !important; }</style></noscript>\n</head>\n<body>\n<main>\n");
	page.append("<h1>Coverage of the catalogs</h1>\n<p class=\"lead\">").append(number(all)).append(" messages in ");
	page.append(number(measured.languages.size())).append(" languages. The percentage is the share of own texts; ");
	page.append("a chip that names a language tells where an inherited text comes from, and neutral texts are the same "
	            "in every language. ");
	page.append("Click a message for its texts, rendered with sample values.</p>\n<div class=\"cards\">\n");
	for (std::size_t i = 0; i != measured.languages.size(); ++i) {
		add_card(page, measured.languages[i], measured.totals[i], all);
	}
	page.append("</div>\n<div class=\"tools\"><input id=\"filter\" type=\"search\" autocomplete=\"off\" "
	            "placeholder=\"Filter by name, note or text\" aria-label=\"Filter\">");
	for (auto const *const state : {"", "own", "inherited", "missing"}) {
		page.append("<button data-state=\"").append(state).append("\" aria-pressed=\"false\">");
		page.append(*state == '\0' ? "all" : state).append("</button>");
	}
	page.append("<span id=\"shown\"></span></div>\n<div class=\"scroll\"><table>\n<thead><tr><th>message</th>");
	for (std::string const &language : measured.languages) {
		page.append("<th class=\"state\">").append(escaped(language)).append("</th>");
	}
	page.append("</tr></thead>\n<tbody>\n");
	for (covered_message const &message : measured.messages) {
		add_message(page, measured, message);
	}
	page.append("</tbody>\n</table></div>\n</main>\n<script>")
	    .append(page_script)
	    .append("</script>\n</body>\n</html>\n");
	return page;
}

} // namespace quor_cli
