/*
 * Per pixel Phong light model fragment shader with colour for all types of
 * light taken from gl_Color.
 */

varying vec3 normal;

// Adds what light i gives to the three terms. Every light is treated as directional.
void addDirectionalLight(in int i, in vec3 fragmentNormal, inout vec4 ambient, inout vec4 diffuse, inout vec4 specular) {
	// Direction to the light, and half way between it and the eye
	vec3 L = normalize(gl_LightSource[i].position.xyz);
	vec3 H = gl_LightSource[i].halfVector.xyz;

	// The correction for back faces: they are lit like front faces
	vec3 N = normalize(normal);
	if (!gl_FrontFacing)
		N = -N;

	float nDotL = max(0.0, dot(N, L));
	float nDotH = max(0.0, dot(N, H));

	// A highlight needs the light on this side, even with no shininess
	float powerMult;
	if (nDotH == 0.0)
		powerMult = 0.0;
	else
		powerMult = pow(nDotH, gl_FrontMaterial.shininess);

	ambient += gl_LightSource[i].ambient;
	diffuse += gl_LightSource[i].diffuse * nDotL;
	specular += gl_LightSource[i].specular * powerMult;
}

void main(void) {
	vec3 fragmentNormal = normalize(normal);

	// Nothing is lit so far
	vec4 ambient = vec4(0.0, 0.0, 0.0, 0.0);
	vec4 diffuse = vec4(0.0, 0.0, 0.0, 0.0);
	vec4 specular = vec4(0.0, 0.0, 0.0, 0.0);

	// Start from global ambient and emission
	vec3 finalColor = gl_FrontLightModelProduct.sceneColor.rgb;

	// All eight light units, whether they are switched on or not
	for (int i = 0; i < 8; i++)
		addDirectionalLight(i, fragmentNormal, ambient, diffuse, specular);

	// The colour tints all three terms, the highlights too
	finalColor += ambient.rgb * gl_Color.rgb + diffuse.rgb * gl_Color.rgb + specular.rgb * gl_Color.rgb;

	// The alpha is the colour's own
	gl_FragColor = vec4(finalColor, gl_Color.a);
}
