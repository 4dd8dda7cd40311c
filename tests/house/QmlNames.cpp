// SPDX-License-Identifier: MIT
#include "QmlNames.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <string_view>

namespace zelk::house {
namespace {

using Names = std::set<std::string>;

/// What a type is made of: the properties it adds to those of its base.
struct Type {
    std::string base;
    Names properties;
};
using Types = std::map<std::string, Type>;

/// One object of a QML file.
struct Object {
    std::string type;
    /// The name that `component Name: Type {}` gives it; otherwise empty.
    std::string component;
    std::string id;
    int idLine = 0;
    int line = 0;
    Names properties;
};

struct QmlFile {
    std::string path;
    std::vector<Object> objects;
};

/// Blanks in place of what stands between quotes, so that no brace or word in a text is taken for code.
std::string withoutTexts(std::string text) {
    char quote = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (quote != 0 && c == '\\') {
            text[i++] = ' ';
            if (i < text.size()) text[i] = ' ';
        } else if (quote != 0) {
            if (c == quote || c == '\n') quote = 0;
            if (c != '\n') text[i] = ' ';
        } else if (c == '"' || c == '\'' || c == '`') {
            quote = c;
            text[i] = ' ';
        }
    }
    return text;
}

std::string lastPart(const std::string& dotted) {
    return dotted.substr(dotted.rfind('.') + 1);
}

/// Reads the line that opens a brace: an object where a type's name stands before it.
std::optional<Object> objectOpenedBy(const std::string& before) {
    static const std::regex opening(R"((?:component\s+(\w+)\s*:\s*)?\b([A-Za-z_][\w.]*)(?:\s+on\s+[\w.]+)?\s*$)");
    static const std::regex enumeration(R"(^\s*enum\s)");
    std::smatch found;
    if (std::regex_search(before, enumeration) || !std::regex_search(before, found, opening)) return std::nullopt;
    const std::string type = lastPart(found[2]);
    if (type.empty() || type[0] < 'A' || type[0] > 'Z') return std::nullopt;
    Object object;
    object.type = type;
    object.component = found[1];
    return object;
}

/// Takes what the declaration `text`, at `line`, says about the object in which it stands.
void readDeclaration(const std::string& text, int line, Object& object) {
    static const std::regex property(
        R"(^\s*(?:(?:default|required|readonly)\s+)*property\s+[\w.]+(?:\s*<[\w.]+>)?\s+(\w+))");
    static const std::regex required(R"(^\s*required\s+(\w+)\s*;?\s*$)");
    static const std::regex id(R"(^\s*id\s*:\s*(\w+))");
    std::smatch found;
    if (std::regex_search(text, found, property) || std::regex_search(text, found, required)) {
        object.properties.insert(found[1]);
    } else if (std::regex_search(text, found, id)) {
        object.id = found[1];
        object.idLine = line;
    }
}

QmlFile readQml(const SourceFile& source) {
    QmlFile file{source.path, {}};
    const std::string text = withoutTexts(withoutComments(source.text));
    std::vector<std::optional<std::size_t>> open;  // the object of every brace that is open, if it opened one
    std::string statement;
    int line = 1;
    const auto endStatement = [&] {
        if (!open.empty() && open.back()) readDeclaration(statement, line, file.objects[*open.back()]);
        statement.clear();
    };
    for (const char c : text) {
        if (c == '{') {
            auto object = objectOpenedBy(statement);
            // `property var x: Type {` declares in the object around it.
            endStatement();
            if (object) {
                object->line = line;
                file.objects.push_back(*object);
                open.emplace_back(file.objects.size() - 1);
            } else {
                open.emplace_back(std::nullopt);
            }
        } else if (c == '}') {
            endStatement();
            if (!open.empty()) open.pop_back();
        } else if (c == '\n' || c == ';') {
            endStatement();
        } else {
            statement += c;
        }
        if (c == '\n') ++line;
    }
    return file;
}

/// The classes of a C++ header with their Q_PROPERTYs, under the names that QML knows them by.
void readHeader(const SourceFile& source, Types& types) {
    static const std::regex opening(
        R"(\b(?:class|struct)\s+(\w+)(?:\s+final)?(?:\s*:\s*public\s+([\w:]+))?[^;{}()]*\{)");
    static const std::regex property(R"(Q_PROPERTY\(\s*[\w:<>, ]+?[\s*&]+(\w+)\s)");
    static const std::regex named(R"(QML_NAMED_ELEMENT\((\w+)\))");
    const std::string text = withoutComments(source.text);
    for (std::sregex_iterator at(text.begin(), text.end(), opening), end; at != end; ++at) {
        const auto next = std::next(at);
        const std::size_t from = at->position() + at->length();
        const std::size_t to = next == end ? text.size() : next->position();
        const std::string body = text.substr(from, to - from);
        Type type{(*at)[2], {}};
        type.base = type.base.substr(type.base.rfind(':') + 1);
        for (std::sregex_iterator p(body.begin(), body.end(), property); p != end; ++p) type.properties.insert((*p)[1]);
        std::smatch name;
        types[std::regex_search(body, name, named) ? name[1].str() : (*at)[1].str()] = type;
    }
}

/// The types of one .qmltypes file, each under the name of its class and those that it is exported by.
void readDescription(const std::string& text, Types& types) {
    static const std::regex name(R"re(\n        name: "([^"]+)")re");
    static const std::regex prototype(R"re(\n        prototype: "([^"]+)")re");
    static const std::regex property(R"re(Property \{\s*name: "(\w+)")re");
    static const std::regex exported(R"re("[\w.]+/(\w+) [\d.]+")re");
    const std::string opening = "\n    Component {";
    for (std::size_t at = text.find(opening); at != std::string::npos;) {
        const std::size_t next = text.find(opening, at + 1);
        const std::string body = text.substr(at, next - at);
        at = next;
        std::smatch found;
        if (!std::regex_search(body, found, name)) continue;
        const std::string className = found[1];
        Type type;
        if (std::regex_search(body, found, prototype)) type.base = found[1];
        const std::sregex_iterator end;
        for (std::sregex_iterator p(body.begin(), body.end(), property); p != end; ++p) type.properties.insert((*p)[1]);
        types[className] = type;
        for (std::sregex_iterator e(body.begin(), body.end(), exported); e != end; ++e) {
            // What is exported is the class itself; a name of its own points there.
            if ((*e)[1] != className) types.try_emplace((*e)[1], Type{className, {}});
        }
    }
}

/// Whether an object of this type has the property; nothing where the type or one of its bases is unknown.
std::optional<bool> hasProperty(const Types& types, std::string type, const std::string& property) {
    for (Names seen; seen.insert(type).second;) {
        const auto found = types.find(type);
        if (found == types.end()) return std::nullopt;
        if (found->second.properties.contains(property)) return true;
        if (found->second.base.empty()) return false;
        type = found->second.base;
    }
    return false;
}

void checkFile(const QmlFile& file, Types types, std::vector<Violation>& violations) {
    // An inline component is known in its own file.
    for (const Object& object : file.objects) {
        if (!object.component.empty()) types[object.component] = {object.type, object.properties};
    }
    for (const Object& object : file.objects) {
        if (!hasProperty(types, object.type, ""))
            violations.push_back({file.path, object.line, "nothing describes the properties of " + object.type});
    }
    for (const Object& named : file.objects) {
        if (named.id.empty()) continue;
        const auto shadowing = std::ranges::find_if(file.objects, [&](const Object& object) {
            return object.properties.contains(named.id) || hasProperty(types, object.type, named.id).value_or(false);
        });
        if (shadowing != file.objects.end())
            violations.push_back({file.path, named.idLine,
                                  "the id \"" + named.id + "\" is the name of a property of the " + shadowing->type +
                                      " at line " + std::to_string(shadowing->line)});
    }
}

}  // namespace

std::vector<Violation> checkIds(const std::vector<SourceFile>& sources, const std::vector<std::string>& descriptions) {
    Types types;
    for (const std::string& description : descriptions) readDescription(description, types);
    std::vector<QmlFile> files;
    for (const SourceFile& source : sources) {
        if (source.path.ends_with(".h")) readHeader(source, types);
        if (source.path.ends_with(".qml")) files.push_back(readQml(source));
    }
    for (const QmlFile& file : files) {
        if (file.objects.empty()) continue;
        const Object& root = file.objects.front();
        types[std::filesystem::path(file.path).stem().string()] = {root.type, root.properties};
    }
    std::vector<Violation> violations;
    for (const QmlFile& file : files) checkFile(file, types, violations);
    return violations;
}

std::vector<Violation> checkCasts(const std::vector<SourceFile>& sources) {
    Names ours;
    for (const SourceFile& source : sources) {
        if (source.path.ends_with(".qml")) ours.insert(std::filesystem::path(source.path).stem().string());
    }
    static const std::regex cast(R"(\bas\s+(\w+))");
    std::vector<Violation> violations;
    for (const SourceFile& source : sources) {
        if (!source.path.ends_with(".qml")) continue;
        const std::string text = withoutTexts(withoutComments(source.text));
        for (std::sregex_iterator at(text.begin(), text.end(), cast), end; at != end; ++at) {
            if (!ours.contains((*at)[1])) continue;
            const auto line = 1 + std::count(text.begin(), text.begin() + at->position(), '\n');
            violations.push_back({source.path, static_cast<int>(line),
                                  "a cast to " + (*at)[1].str() + ", which another engine's object is not"});
        }
    }
    return violations;
}

}  // namespace zelk::house
