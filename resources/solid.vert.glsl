/*
 * Simple vertex shader for no lighting - just the set colour.
 */

void main(void) {
	// The following lines give the same result (optimization increasing)
	// gl_Position = gl_ProjectionMatrix * gl_ModelViewMatrix * gl_Vertex;
	// gl_Position = gl_ModelViewProjectionMatrix * gl_Vertex;
	gl_Position = ftransform();

	// Set both front and back colour
	gl_FrontColor = gl_Color;
	gl_BackColor = gl_Color;
}
