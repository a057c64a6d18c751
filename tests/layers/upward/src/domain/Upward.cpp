// A domain file that reaches into the controller: the layer check must refuse it.
#include "app/AppController.h"
#include "domain/Record.h"
