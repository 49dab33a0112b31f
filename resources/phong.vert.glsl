/*
 * Simple vertex shader for per pixel Phong lighting.
 */

varying vec3 normal;


void main(void) {
	// Get the normal vector in eye space
	// Correction for back faces
	normal = gl_NormalMatrix * gl_Normal;

	// The following lines give the same result (optimization increasing)
	// gl_Position = gl_ProjectionMatrix * gl_ModelViewMatrix * gl_Vertex;
	// gl_Position = gl_ModelViewProjectionMatrix * gl_Vertex;
	gl_Position = ftransform();

	// Set both front and back colour
	gl_FrontColor = gl_Color;
	gl_BackColor = gl_Color;
}
