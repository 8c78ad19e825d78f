#pragma once

class FunctionCatalogue;

/// Puts every function that is built into this program into its catalogue.
void addFunctions(FunctionCatalogue &functions);
