#pragma once
// Each section of the demo shows one part of the library end to end.
void DemoFoundation();
// A script call on a repository object, bound and checked, right and wrong.
void DemoScriptCall();
// Model attributes across analysis steps, property tables, progress reporting.
void DemoModel();
// A small model framed by the camera, projected and drawn as a picture.
void DemoGeometry();
// Values crossing the boundary: nested sequences, dictionaries, arrays, a mock call.
void DemoValues();
