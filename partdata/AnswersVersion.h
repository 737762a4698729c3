#pragma once

/// The version of what scripts are answered in JSON, as docs/answers.schema.json describes it. Every object
/// that stands alone tells it as "schemaVersion"; members are only ever added under one version.
inline constexpr int AnswersVersion = 1;
