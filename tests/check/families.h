// The families, one a line. The rows of each are in the source of its name here, which defines families::<name>().
FAMILY(vectors)
FAMILY(matrices)
FAMILY(movement)
FAMILY(vector_algebra)
FAMILY(products)
FAMILY(solvers)
FAMILY(symmetric)
FAMILY(geometry)
