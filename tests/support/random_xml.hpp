#ifndef QUOR_TESTS_SUPPORT_RANDOM_XML_HPP
#define QUOR_TESTS_SUPPORT_RANDOM_XML_HPP

// Texts that are nearly XML: documents put together from a grammar, then changed in a
// few places, so that most runs get deep into a parser before they fail.

#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace quor_test {

class random_xml {
public:
	explicit random_xml(unsigned int seed) : m_random(seed) {}

	// Any document of the parser's dialect, with its quirks.
	std::string document() {
		std::string text = one_of({"<?xml?>", "<?xml version=\"1.0\"?>", "<?xml?>\n", "\xEF\xBB\xBF<?xml?>"});
		text += content(0, 2);
		text += element(3);
		text += content(0, 2);
		return text;
	}

	// A catalog file, with faults of its own kind now and then.
	std::string catalog_file() {
		std::string text = "<?xml version=\"1.0\"?>";
		text += rarely()
		            ? one_of({"<xmc>", "<xmc version=\"2\">", "<abc>", "<xmc version=\"1.0\" b=\"c\">"})
		            : one_of({"<xmc version=\"1.0\">", "<xmc version='1.1' >\n", "<xmc version=\"1.1\"> <!-- c -->"});
		for (std::size_t i = below(4); i != 0; --i) {
			text += catalog() + filling();
		}
		return text + "</xmc>" + one_of({"", "\n", std::string(1, '\0')});
	}

	// Changes a few places of a text.
	std::string changed(std::string text) {
		for (std::size_t i = below(4); i != 0; --i) {
			std::size_t const at = below(text.size() + 1);
			switch (below(4)) {
			case 0:
				text.erase(at, below(4) + 1);
				break;
			case 1:
				text.insert(at, piece());
				break;
			case 2:
				text.resize(at);
				break;
			default:
				text.insert(at, text.substr(below(text.size() + 1), below(20)));
				break;
			}
		}
		return text;
	}

	std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(m_random); }
	bool rarely() { return below(12) == 0; }
	std::string one_of(std::vector<std::string> const &choices) { return choices[below(choices.size())]; }

private:
	std::string piece() {
		return one_of(
		    {"<",      ">",      "/",    "&",     ";",      "=",      "\"",     "'",        " ",
		     "  ",     "\n",     "\n\n", "!",     "-",      "<!--",   "-->",    "?",        "a",
		     "_",      "9",      "</",   "/>",    "<a",     "</a>",   "<a/>",   "b=\"1\"",  "<?xml?>",
		     "&amp;",  "&#x41;", "&#0;", "&#08;", "&#300;", "&nbsp;", "&quot;", "\xC3\xA9", std::string(1, '\0'),
		     "&apos;", "&apx;",  "&g;",  "&#x;",  "msg",    "<b",     "&#9;",   "\xE9",     "\t"});
	}

	std::string name() { return one_of({"a", "b", "c", "ab", "a_1", "X9"}); }

	std::string characters() {
		return one_of({"t", "one two", "a  b", "x\n", "\n", " ", " \t\r\n", "&amp;", "&lt;x&gt;", "&#65;", "&nbsp; x",
		               "p > q", "q/r", "&#x20;  &#32;", "'\"", "caf\xC3\xA9", "x "});
	}

	std::string value() {
		std::string const text = one_of({"", "1", "a b", "&amp;", "x>y", "\n", "/", "&#0;", "\xC3\xA9"});
		return rarely() ? "'" + text + "\"'" : "\"" + text + "\"";
	}

	std::string attributes() {
		std::string text;
		for (std::size_t i = below(3); i != 0; --i) {
			text += one_of({" ", "\n", "  "}) + (rarely() ? name() : name() + std::to_string(i)) +
			        one_of({"=", " = ", "=\n"}) + value();
		}
		return text + one_of({"", " "});
	}

	std::string element(std::size_t depth) {
		std::string const tag = name();
		if (below(3) == 0) {
			return "<" + tag + attributes() + "/>";
		}
		std::string const end = rarely() ? tag + " b=\"1\"" : tag;
		return "<" + tag + attributes() + ">" + content(depth, 4) + "</" + end + one_of({">", " >", ">", "\n>"});
	}

	std::string content(std::size_t depth, std::size_t limit) {
		std::string text;
		for (std::size_t i = below(limit); i != 0; --i) {
			switch (below(4)) {
			case 0:
				text += one_of({"<!---->", "<!-- c -->", "<!-- - -- & < -->", "<!--msg-->"});
				break;
			case 1:
				text += depth == 0 ? characters() : element(depth - 1);
				break;
			default:
				text += characters();
				break;
			}
		}
		return text;
	}

	std::string filling() { return one_of({"", "", " ", "\n\n", "text", "<!-- c -->", "<!--msg-->"}); }

	std::string catalog() {
		std::string text =
		    "<catalog" + one_of({" name=\"app\"", " name=\"lib\"", ""}) +
		    one_of({" lang=\".\"", " lang=\"en\"", " lang=\"de\"", " lang=\"de-AT\"", " lang=\"fr\"", ""});
		text += rarely() ? " x=\"1\">" : ">";
		text += filling();
		for (std::size_t i = below(4); i != 0; --i) {
			text += message() + filling();
		}
		if (rarely()) {
			text += one_of({"<msh/>", "<br/>", "<catalog/>"});
		}
		return text + one_of({"</catalog>", "</catalog>", "</catalog b=\"1\">"});
	}

	std::string message() {
		std::string text =
		    "<msg" + one_of({" name=\"m\"", " name=\"n\"", " name=\"o\"", ""}) + one_of({"", " meta=\"x\""});
		text += rarely() ? " x=\"1\">" : ">";
		for (std::size_t i = below(6); i != 0; --i) {
			switch (below(6)) {
			case 0:
				text += rarely() ? one_of({"<br>x</br>", "<br a=\"1\"/>", "<br><!-- c --></br>"}) : "<br/>";
				break;
			case 1:
			case 2:
				text += argument();
				break;
			case 3:
				text += rarely() ? one_of({"msg", "<b/>", "<msg/>", "<!--msg-->"}) : filling();
				break;
			default:
				text += characters();
				break;
			}
		}
		return text + one_of({"</msg>", "</msg>", "</msg>", "</msg a=\"1\">"});
	}

	std::string argument() {
		std::string const tag = one_of({"arg", "argument"});
		std::string text("<");
		text.append(tag);
		text.append(one_of({"", " fieldsize=\"8\""}));
		text.append(one_of({" name=\"n\"", " name=\"who\"", ""}));
		text.append(one_of({"", " type=\"int\"", " type=\"VALUE\"", " type=\"mem\"", " type=\"what\""}));
		text.append(one_of({"", " base=\"hex\"", " prec=\"\""}));
		if (!rarely()) {
			return text.append("/>");
		}
		text.append(">").append(one_of({"x", "<b/>", "<!--arg-->", "<arg/>"}));
		return text.append("</").append(tag).append(">");
	}

	std::mt19937 m_random;
};

} // namespace quor_test

#endif
