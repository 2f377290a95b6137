#include "support/PrintValue.h"

#include <iomanip>
#include <ostream>

namespace NS {

namespace {

void printArray(const Value::Array& array, std::ostream& stream)
{
    const char* separator = "";
    stream << '[';
    for (const Value& element : array) {
        stream << separator;
        PrintTo(element, &stream);
        separator = ", ";
    }
    stream << ']';
}

void printDictionary(const Value::Dictionary& dictionary, std::ostream& stream)
{
    const char* separator = "";
    stream << '{';
    for (const auto& [key, value] : dictionary) {
        stream << separator << std::quoted(key) << ": ";
        PrintTo(value, &stream);
        separator = ", ";
    }
    stream << '}';
}

} // namespace

void PrintTo(const Value& value, std::ostream* stream)
{
    switch (value.kind()) {
    case Value::Kind::Boolean:
        *stream << (*value.boolean() ? "true" : "false");
        break;
    case Value::Kind::Integer:
        if (const auto integer = value.integer())
            *stream << *integer;
        else
            *stream << *value.largeInteger();
        break;
    case Value::Kind::Real:
        *stream << "real " << *value.real();
        break;
    case Value::Kind::String:
        *stream << std::quoted(*value.string());
        break;
    case Value::Kind::Date:
        *stream << "date " << value.date()->timeIntervalSince1970;
        break;
    case Value::Kind::Data:
        *stream << "data of " << value.data()->size() << " bytes";
        break;
    case Value::Kind::Array:
        printArray(*value.array(), *stream);
        break;
    case Value::Kind::Dictionary:
        printDictionary(*value.dictionary(), *stream);
        break;
    }
}

} // namespace NS
