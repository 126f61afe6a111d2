#pragma once
// Each section of the demo shows one part of the library end to end.
void DemoFoundation();
void DemoValues();
