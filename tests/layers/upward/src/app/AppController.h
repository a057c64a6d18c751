// Stands for the controller in the layer check's own test.
#include "domain/Record.h"
