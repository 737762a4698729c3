#include "partfiles/ValueFindings.h"

#include "calc/NumberText.h"
#include "partdata/FieldNames.h"
#include "partdata/Windows1252.h"

#include <utility>

void ValueFindings::Add(Severity level, std::string rule, std::string field, std::string value,
                        std::string message)
{
    Push({.Level = level,
          .Rule = std::move(rule),
          .Field = std::move(field),
          .Value = std::move(value),
          .Message = std::move(message)},
         place.DataFile);
}

void ValueFindings::AddValue(Severity level, std::string rule, std::size_t index, std::string message)
{
    Add(level, std::move(rule), DataName(index), NumberText(place.Part.Data[index]), std::move(message));
}

void ValueFindings::AddName(Severity level, std::string rule, std::size_t field, std::string message)
{
    Push({.Level = level,
          .Rule = std::move(rule),
          .Field = FieldName(field),
          .Value = Utf8FromWindows1252(NamesOf(place.Part)[field]),
          .Message = std::move(message)},
         place.IndexFile);
}

void ValueFindings::Push(Finding finding, const std::string& file)
{
    finding.File = file;
    finding.Record = place.Record;
    finding.PartNumber = Utf8FromWindows1252(place.Part.PartNum[0]);
    findings.push_back(std::move(finding));
}
